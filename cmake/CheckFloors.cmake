# Holds the order of headers: a header includes headers of its own floor or lower ones, and what is public
# (include/) never sees what is private (src/) nor the libraries behind it.
#
#     cmake -P cmake/CheckFloors.cmake
#
# Floors: 0 ground, 1 text rules, 2 values, 3 settings, 4 XML, 5 core, 6 collections, 7 metadata,
# 8 second format, 9 edges to the standard library. A folder's headers stand on the floor of the folder, except
# those named below. The header that includes all others stands above all floors and includes every public header.
# Sources (.cpp) may include any header.
cmake_minimum_required(VERSION 3.25)

set(floor_of_conversions 2)
set(floor_of_values 2)
set(floor_of_xml 4)
set(floor_of_object 5)
set(floor_of_collections 6)
set(floor_of_metadata 7)
set(floor_of_fastinfoset 8)
set(floor_of_edges 9)

set(headers_of_floor_0
    object/AddressSanitizer object/CInstanceMonitor object/CKZCriticalSection object/CKzException object/CSmartPtr object/CurrentLimit
    object/Enumerations object/Export object/FormatString object/Fwd object/IEventSink object/INillable
    object/ItemType object/Limits object/Messages object/SupportContact object/Text object/TextScan object/Throw object/UniqueNumber object/Utf8
    metadata/XmlElementType)
set(headers_of_floor_1
    conversions/CPrimitiveRestrictions conversions/CWhitespaceUtils conversions/XsdPattern)
set(headers_of_floor_3
    fastinfoset/CFIVocabulary fastinfoset/CFastInfosetContext
    object/CNamespaceAliasMap object/CXmlSerializationContext)

set(private_libraries expat.h pcre2.h zlib.h)

# The floor of a header, given as folder/Name; empty if its folder has none.
function(get_floor header result)
    foreach(floor IN ITEMS 0 1 3)
        if(header IN_LIST headers_of_floor_${floor})
            set(${result} ${floor} PARENT_SCOPE)
            return()
        endif()
    endforeach()
    get_filename_component(folder "${header}" DIRECTORY)
    set(${result} "${floor_of_${folder}}" PARENT_SCOPE)
endfunction()

# Checks one line of a header: `included` as it stands there, with its brackets or quotes.
function(check_include file header floor included)
    string(REGEX REPLACE "^[<\"](.*)[>\"]$" "\\1" path "${included}")
    if(path MATCHES "^KzXmlLib10/(.+)\\.h$")
        set(target "${CMAKE_MATCH_1}")
        set(exists "${root}/include/${path}")
    elseif(included MATCHES "^\"(.+)\\.h\"$")
        set(target "${CMAKE_MATCH_1}")
        set(exists "${root}/src/${path}")
        if(file MATCHES "^include/")
            message(SEND_ERROR "${file} is public and includes the private ${included}")
            return()
        endif()
    else()
        if(file MATCHES "^include/" AND path IN_LIST private_libraries)
            message(SEND_ERROR "${file} is public and includes ${included}, which users need not have")
        endif()
        return()
    endif()
    get_floor("${target}" target_floor)
    if(NOT EXISTS "${exists}")
        message(SEND_ERROR "${file} includes ${included}, which is not there")
    elseif(target_floor GREATER floor)
        message(SEND_ERROR "${file} (floor ${floor}) includes ${included} (floor ${target_floor})")
    endif()
endfunction()

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH root)
file(GLOB_RECURSE files RELATIVE "${root}" "${root}/include/*.h" "${root}/src/*.h")
list(REMOVE_ITEM files include/KzXmlLib10/KzXmlLib10.h)
file(READ "${root}/include/KzXmlLib10/KzXmlLib10.h" all_headers)

foreach(file IN LISTS files)
    string(REGEX REPLACE "^(include/KzXmlLib10|src)/(.*)\\.h$" "\\2" header "${file}")
    get_floor("${header}" floor)
    if(floor STREQUAL "")
        message(SEND_ERROR "${file}: its folder has no floor; name one in cmake/CheckFloors.cmake")
        continue()
    endif()
    if(file MATCHES "^include/(.*)$")
        string(FIND "${all_headers}" "#include <${CMAKE_MATCH_1}>" position)
        if(position EQUAL -1)
            message(SEND_ERROR "${file} is missing in include/KzXmlLib10/KzXmlLib10.h")
        endif()
    endif()
    file(STRINGS "${root}/${file}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"]")
    foreach(line IN LISTS lines)
        string(REGEX MATCH "[<\"][^>\"]+[>\"]" included "${line}")
        check_include("${file}" "${header}" "${floor}" "${included}")
    endforeach()
endforeach()

list(LENGTH files count)
message(STATUS "${count} headers looked at")
