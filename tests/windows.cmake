# What is tested on Windows: what exists nowhere else, and as much of the portable code as shows that
# the same numbers come out. The same for 32 bits as for 64.
add_subdirectory(ole)
add_subdirectory(support EXCLUDE_FROM_ALL)
add_subdirectory(unit/frame)
add_subdirectory(unit/win32)
add_subdirectory(contract)
add_subdirectory(ole/container)
add_subdirectory(unit/ole)
lumenkit_test(caption_model_test OPTIMISED
    SOURCES
        model/caption_comparison.cpp
        model/caption_compiler_model_test.cpp
        model/caption_generator.cpp
        model/corpus_test.cpp
        model/literal_caption_compiler.cpp
    LINKS lumenkit::vlabel
)
