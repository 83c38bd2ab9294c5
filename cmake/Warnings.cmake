# What every target of ours is compiled with: all warnings, and the sanitizers when asked for. A warning is an error only
# where a preset for developing says so (CMAKE_COMPILE_WARNING_AS_ERROR): a later compiler with a new one must not break
# the build of someone who only wants the program.
add_library(tvorel_options INTERFACE)
target_compile_options(tvorel_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual
    # g++ 12 sees overlaps in std::string operator+ that aren't there (GCC bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(TVOREL_SANITIZE)
    target_compile_options(tvorel_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(tvorel_options INTERFACE -fsanitize=address,undefined)
endif()
if(TVOREL_FUZZ)
    target_compile_options(tvorel_options INTERFACE -fsanitize=fuzzer-no-link)
    target_compile_definitions(tvorel_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
