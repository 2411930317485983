# The house rules of every target: one warning level, one set of switches, and functions that keep a folder's CMakeLists.txt to
# a few lines. Each folder is one target that links only what it may see.

# Signs are left out of the conversions: Qt counts with signed numbers and the standard library with unsigned ones, so that loops over both
# would need casts that hide more than they show. What may lose digits is an error either way.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(NOT IPCPARAM_QT EQUAL 5) # whose sizes are int where those of Qt 6 are as wide as a pointer
    add_compile_options(-Wconversion -Wno-sign-conversion)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-fpch-preprocess) # lets a compiler cache see through the compiled headers
endif()
# The packages are built several sources at once, so names in anonymous namespaces are unique in their target.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-Wno-subobject-linkage) # takes each source for a header
endif()
if(IPCPARAM_WERROR)
    add_compile_options(-Werror)
endif()
if(IPCPARAM_QT EQUAL 5)
    add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
else()
    add_compile_definitions(QT_NO_CAST_FROM_BYTEARRAY QT_DISABLE_DEPRECATED_BEFORE=0x060400)
endif()

if(IPCPARAM_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# What reads files of unknown origin and runs for months ends at a fault of memory rather than being led on by it.
if(CMAKE_BUILD_TYPE MATCHES "^Rel" AND NOT IPCPARAM_SANITIZE AND NOT IPCPARAM_FUZZ)
    set(fortify 3)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 12)
        set(fortify 2)
    endif()
    add_compile_options(-fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${fortify})
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64|i.86")
        add_compile_options(-fcf-protection)
    endif()
    add_link_options(LINKER:-z,relro,-z,now)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX) # without it, position independent code does not reach the linking of programs
endif()

if(IPCPARAM_FUZZ)
    # All is instrumented, or the fuzzer would not see where its inputs lead.
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# The Qt headers that nearly every source includes are compiled once for the libraries without a window and once for all the rest.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/pch.cpp CONTENT "")
foreach(kind Core Widgets)
    add_library(pch_${kind} OBJECT ${CMAKE_BINARY_DIR}/pch.cpp)
    target_link_libraries(pch_${kind} PRIVATE ${QT}::${kind})
    target_precompile_headers(pch_${kind} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch.h)
    set_target_properties(pch_${kind} PROPERTIES AUTOMOC OFF)
endforeach()

# house_precompile(<target> [Core]): takes part in the compiled headers.
function(house_precompile target)
    set(kind Widgets)
    if(ARGC GREATER 1)
        set(kind ${ARGV1})
    endif()
    target_compile_options(${target} PRIVATE -fPIC) # programs too, or the compiled headers would not fit
    target_precompile_headers(${target} REUSE_FROM pch_${kind})
endfunction()

# house_resources(<target> <name> PREFIX <prefix> BASE <directory> FILES ...): compiles the files into the target. What links a static
# target holds them without a call.
function(house_resources target name)
    if(NOT IPCPARAM_QT EQUAL 5)
        qt_add_resources(${target} ${name} ${ARGN})
        return()
    endif()
    cmake_parse_arguments(ARG "" "PREFIX;BASE" "FILES" ${ARGN})
    set(collection "<RCC><qresource prefix=\"${ARG_PREFIX}\">\n")
    foreach(file IN LISTS ARG_FILES)
        file(RELATIVE_PATH alias ${ARG_BASE} ${file})
        string(APPEND collection "<file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc CONTENT "${collection}</qresource></RCC>\n" @ONLY)
    add_custom_command(OUTPUT qrc_${name}.cpp
        COMMAND Qt5::rcc --name ${name} --output qrc_${name}.cpp ${name}.qrc
        DEPENDS ${ARG_FILES} ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc
        VERBATIM)
    add_library(${name}_resources OBJECT ${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}.cpp)
    set_target_properties(${name}_resources PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
    target_link_libraries(${name}_resources PRIVATE Qt5::Core)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL STATIC_LIBRARY)
        # The linker would leave out a member of the archive that nothing calls.
        target_link_libraries(${target} INTERFACE $<TARGET_OBJECTS:${name}_resources>)
    else()
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${name}_resources>)
    endif()
endfunction()

# house_install(<target> <export set>): how a library is named and installed. Its headers are installed by packaging/.
function(house_install target set)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} # until 1.0 any minor version may change the interface
        DEFINE_SYMBOL ""
        IPCPARAM_OWN_STORAGE ${IPCPARAM_SHARED}) # a shared library leaves the storage to the program
    install(TARGETS ${target} EXPORT ${set}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endfunction()

# house_library(<target> [LINKS ...] [LINKS_PRIVATE ...]): a library of the platform, of all sources in the current folder.
function(house_library target)
    cmake_parse_arguments(ARG "" "" "LINKS;LINKS_PRIVATE" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(${target} ${sources})
    target_link_libraries(${target} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_LINKS_PRIVATE})
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ipcparam-${target})
    house_install(${target} platform)
    if(${QT}::Widgets IN_LIST ARG_LINKS)
        house_precompile(${target})
    else()
        house_precompile(${target} Core)
    endif()
endfunction()

# house_test(<name> LINKS ...): the Qt Test program <name>.cpp, run headless.
function(house_test name)
    cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} ${QT}::Test)
    house_precompile(${name})
    # It is one source that includes its meta objects. To find and compile that in general takes as long as to compile a small test.
    set_target_properties(${name} PROPERTIES UNITY_BUILD OFF AUTOMOC OFF)
    add_custom_command(OUTPUT ${name}.moc
        COMMAND ${QT}::moc -o ${name}.moc ${CMAKE_CURRENT_SOURCE_DIR}/${name}.cpp
        DEPENDS ${name}.cpp VERBATIM)
    target_sources(${name} PRIVATE ${name}.moc)
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
