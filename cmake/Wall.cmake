# The wall between the feature folders and the libraries behind platform/.
#
# platform links those libraries privately, so their include folders stay off a feature's path. Two roads are left:
# Qt Core puts the folder above all Qt modules on the path, so <QtWidgets/QWidget> would be found, and OpenSSL and
# SQLCipher lie under /usr/include. In cmake/wall stand headers of the names that every header of these libraries
# includes first, each nothing but an error. The wall is searched before all others.
add_library(wall INTERFACE)
target_include_directories(wall BEFORE INTERFACE ${PROJECT_SOURCE_DIR}/cmake/wall)

# pourbook_feature(name SOURCES ... LIBRARIES ...): the library of one feature folder. What links it, a test say,
# does not get the wall.
function(pourbook_feature name)
    cmake_parse_arguments(FEATURE "" "" "SOURCES;LIBRARIES" ${ARGN})
    if(NOT FEATURE_SOURCES OR FEATURE_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "pourbook_feature(${name}) needs SOURCES, and knows LIBRARIES besides")
    endif()
    add_library(${name} STATIC ${FEATURE_SOURCES})
    target_link_libraries(${name} PUBLIC platform ${FEATURE_LIBRARIES} PRIVATE wall)
endfunction()
