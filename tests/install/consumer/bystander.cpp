// Compiles as the project says, not as lumenkit does.
#if __cplusplus != 201703L
#error "the project's own language is C++17"
#endif
#if __has_include("frame/text.h") || __has_include("lumenkit/frame/text.h")
#error "lumenkit's headers are for those that link it"
#endif

int Seven();

int Seven() {
    return 7;
}
