# Holds the rule that a format is a literal: a text of a document or of the application that came to stand there
# could bring placeholders of its own. Throw takes nothing but constants; the formats of real numbers, which generated
# code brings, are checked before they are used.
#
#     cmake -P cmake/CheckFormats.cmake
cmake_minimum_required(VERSION 3.25)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
file(GLOB_RECURSE sources "${root}/src/*.cpp" "${root}/src/*.h")
list(FILTER sources EXCLUDE REGEX "/object/(FormatString\\.cpp|Throw\\.h)$")
foreach(source IN LISTS sources)
    file(STRINGS "${source}" calls REGEX "FormatString\\((u[^\"]|[^u]|$)")
    list(FILTER calls EXCLUDE REGEX "FormatString\\(format\\.c_str\\(\\), static_cast<double>\\(")
    if(calls)
        message(SEND_ERROR "${source} has a format that is no literal: ${calls}")
    endif()
endforeach()
