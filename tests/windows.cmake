# What is tested on Windows: what exists nowhere else, and as much of the portable code as shows that
# the same numbers come out. The same for 32 bits as for 64.
add_subdirectory(ole)
add_subdirectory(support EXCLUDE_FROM_ALL)
add_subdirectory(unit/frame)
foreach(folder unit/win32 contract ole/container unit/ole)
    if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt")
        add_subdirectory(${folder})
    endif()
endforeach()
lumenkit_test(caption_model_test OPTIMISED
    SOURCES
        model/caption_comparison.cpp
        model/caption_compiler_model_test.cpp
        model/caption_generator.cpp
        model/corpus_test.cpp
        model/literal_caption_compiler.cpp
    LINKS lumenkit::vlabel
)
