# Holds what README.md and docs/ show to what is compiled and run.
#
#     cmake -P cmake/CheckDocuments.cmake
#
# Above each block of code or output stands where it comes from, which readers of the page do not see:
#
#     <!-- examples/guide/Reading.cpp [read-file] -->     between the lines with [read-file] and [/read-file]
#     <!-- examples/guide/guide-output.txt [read-file] -->     behind the line [read-file]
#     <!-- examples/guide/readme-output.txt -->     all of it
#
# A block of C++ without such a line is refused, and so is a link to a file that is not there.
cmake_minimum_required(VERSION 3.25)

# The text behind the line that holds `[name]`, up to the line that holds `[/name]` or, in a file of output,
# to the next line of that kind; without the indentation of its first line. The whole file if there is no name.
function(read_region file name result)
    file(READ "${root}/${file}" text)
    if(NOT name)
        set(${result} "${text}" PARENT_SCOPE)
        return()
    endif()
    string(FIND "${text}" "[${name}]" begin)
    if(begin EQUAL -1)
        message(SEND_ERROR "${file} has no region [${name}]")
        return()
    endif()
    string(SUBSTRING "${text}" ${begin} -1 text)
    string(FIND "${text}" "\n" begin)
    math(EXPR begin "${begin} + 1")
    string(SUBSTRING "${text}" ${begin} -1 text)
    string(FIND "${text}" "[/${name}]" end)
    if(end EQUAL -1)
        string(REGEX REPLACE "\n\\[[a-z-]+\\]\n.*$" "\n" text "${text}")
    else()
        string(SUBSTRING "${text}" 0 ${end} text)
        string(REGEX REPLACE "\n[^\n]*$" "\n" text "${text}")
    endif()
    if(text MATCHES "^ +")
        string(REPLACE "\n${CMAKE_MATCH_0}" "\n" text "\n${text}")
        string(SUBSTRING "${text}" 1 -1 text)
    endif()
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Compares each marked block of a document, and counts them in `count`.
function(check_blocks document)
    file(READ "${root}/${document}" text)
    set(marker "<!-- ([A-Za-z0-9_./-]+)( \\[([a-z-]+)\\])? -->\n```[a-z]+\n")
    while(text MATCHES "${marker}")
        set(source "${CMAKE_MATCH_1}")
        set(name "${CMAKE_MATCH_3}")
        string(FIND "${text}" "${CMAKE_MATCH_0}" begin)
        string(LENGTH "${CMAKE_MATCH_0}" length)
        string(SUBSTRING "${text}" 0 ${begin} before)
        math(EXPR begin "${begin} + ${length}")
        string(SUBSTRING "${text}" ${begin} -1 text)
        check_unmarked("${document}" "${before}")
        string(FIND "${text}" "```" end)
        string(SUBSTRING "${text}" 0 ${end} block)
        math(EXPR end "${end} + 3")
        string(SUBSTRING "${text}" ${end} -1 text)
        read_region("${source}" "${name}" region)
        if(NOT block STREQUAL region)
            message(SEND_ERROR "${document} shows something else than [${name}] of ${source}, which is:\n${region}")
        endif()
        math(EXPR count "${count} + 1")
    endwhile()
    check_unmarked("${document}" "${text}")
    set(count ${count} PARENT_SCOPE)
endfunction()

function(check_unmarked document text)
    if(text MATCHES "```cpp\n([^\n]*)")
        message(SEND_ERROR "${document} shows code that comes from no compiled file: ${CMAKE_MATCH_1}")
    endif()
endfunction()

function(check_links document)
    file(READ "${root}/${document}" text)
    cmake_path(GET document PARENT_PATH folder)
    string(REGEX MATCHALL "\\([A-Za-z0-9_./-]+\\.(md|h|cpp|xsd|xml|svg)\\)" links "${text}")
    foreach(link IN LISTS links)
        string(REGEX REPLACE "[()]" "" link "${link}")
        if(NOT EXISTS "${root}/${folder}/${link}")
            message(SEND_ERROR "${document} links to ${link}, which is not there")
        endif()
    endforeach()
endfunction()

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
file(GLOB_RECURSE documents RELATIVE "${root}" "${root}/*.md")
list(FILTER documents EXCLUDE REGEX "^(build|\\.[^/]*)/")

set(count 0)
foreach(document IN LISTS documents)
    check_blocks("${document}")
    check_links("${document}")
endforeach()
message(STATUS "${count} blocks compared")
