# The warnings that all code of this project keeps clear of. They are errors only where
# CMAKE_COMPILE_WARNING_AS_ERROR says so, as the presets for developers do.
function(quillon_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow)
endfunction()
