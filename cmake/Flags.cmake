# The flags of every target of ours. Warnings are errors.
add_library(vexlo_flags INTERFACE)
target_compile_options(vexlo_flags INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-align -Wunused -Wnull-dereference -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough)
# g++ 12 reports overlaps in std::string's own code when it optimises; there are none.
target_compile_options(vexlo_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(vexlo_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
if(VEXLO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    # With the sanitizers' own branches the compiler sees null pointers that are none.
    target_compile_options(vexlo_flags INTERFACE -Wno-null-dereference -Wno-maybe-uninitialized)
endif()
if(VEXLO_FUZZ)
    add_compile_options(-fsanitize=address,undefined,fuzzer-no-link -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
