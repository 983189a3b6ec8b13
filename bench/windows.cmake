# The programs for Windows; scripts/bench.sh runs them under Wine.
target_sources(lumenkit_bench PRIVATE wall_stopwatch.cpp windows_ratio_table.cpp)

foreach(program repaint_bench windows_memo_bench windows_option_list_bench)
    lumenkit_bench_program(${program} lumenkit_windows_support lumenkit::project)
endforeach()

lumenkit_bench_program(load_bench ole32 oleaut32 uuid)
target_compile_definitions(load_bench PRIVATE "LUMENKIT_OCX=L\"Z:$<TARGET_FILE:lumenkit_ocx>\"")
add_dependencies(load_bench lumenkit_ocx)
