# How the library is put together: one object library per floor, so that each floor builds and is
# tested without those above it, and one shared library of them all.

add_library(ficha_opcoes INTERFACE)
target_compile_options(ficha_opcoes INTERFACE
    -Wall -Wextra -Werror -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wunused -Wnull-dereference -Wno-error=null-dereference -Wno-null-dereference)
target_compile_definitions(ficha_opcoes INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH)
target_include_directories(ficha_opcoes INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_link_libraries(ficha_opcoes INTERFACE Qt6::Core Qt6::Gui Qt6::Widgets Qt6::Svg)
if(FICHA_SANITIZERS)
    target_compile_options(ficha_opcoes INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-sanitize=vptr
        -fno-omit-frame-pointer
        # Instrumented code makes this compiler see uninitialised members of std::variant.
        -Wno-maybe-uninitialized)
    target_link_options(ficha_opcoes INTERFACE -fsanitize=address,undefined -fno-sanitize=vptr)
endif()

# Layouts are compiled while the program is built. Without the sanitizers' flags: it only runs here.
add_executable(ficha_compilar_layout
    "${CMAKE_SOURCE_DIR}/cmake/layouts/CompilarLayout.cpp"
    "${CMAKE_SOURCE_DIR}/src/platform/toolkit/ArquivoUi.cpp")
target_include_directories(ficha_compilar_layout PRIVATE "${CMAKE_SOURCE_DIR}/src")
target_link_libraries(ficha_compilar_layout PRIVATE Qt6::Core)
set_target_properties(ficha_compilar_layout PROPERTIES AUTOMOC OFF)

# ficha_layouts_compilados(list file...): compiles layouts and puts the results into a list, each with
# the alias layouts/<name>.ui for qt_add_resources.
function(ficha_layouts_compilados saida)
    set(pasta "${CMAKE_CURRENT_BINARY_DIR}/layouts_compilados")
    file(MAKE_DIRECTORY "${pasta}")
    set(compilados "")
    foreach(arquivo IN LISTS ARGN)
        get_filename_component(nome "${arquivo}" NAME)
        add_custom_command(OUTPUT "${pasta}/${nome}"
                           COMMAND ficha_compilar_layout "${arquivo}" "${pasta}/${nome}"
                           DEPENDS ficha_compilar_layout "${arquivo}"
                           COMMENT "Compiling layout ${nome}" VERBATIM)
        set_source_files_properties("${pasta}/${nome}" PROPERTIES
                                    QT_RESOURCE_ALIAS "layouts/${nome}")
        list(APPEND compilados "${pasta}/${nome}")
    endforeach()
    set(${saida} ${compilados} PARENT_SCOPE)
endfunction()

# Layouts and pictures, one resource library for all floors.
file(GLOB FICHA_LAYOUTS CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/layouts/*.ui")
file(GLOB FICHA_FIGURAS CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/layouts/pictures/*.svg"
     "${CMAKE_SOURCE_DIR}/src/layouts/pictures/*.png")
add_library(ficha_layouts OBJECT)
ficha_layouts_compilados(FICHA_COMPILADOS ${FICHA_LAYOUTS})
# Read when a screen opens, each once: unpacking them takes longer than their 200 kB are worth.
qt_add_resources(ficha_layouts ficha_layouts PREFIX "/ficha" BASE "${CMAKE_SOURCE_DIR}/src"
                 OPTIONS --no-compress FILES ${FICHA_COMPILADOS} ${FICHA_FIGURAS})
target_link_libraries(ficha_layouts PRIVATE Qt6::Core)

set(FICHA_ANDARES "" CACHE INTERNAL "")

# Precompiled headers: made once, by the first target of a kind, and used by the others of it. Each
# takes 140 MB and four seconds.
function(ficha_precompilar alvo dono)
    if(alvo STREQUAL dono)
        target_precompile_headers(${alvo} PRIVATE <QWidget> <QString> <functional> <memory> <vector>)
    else()
        target_precompile_headers(${alvo} REUSE_FROM ${dono})
    endif()
endfunction()

# ficha_andar(name folder USA floor...): the object library ficha_<name> of a floor.
function(ficha_andar nome pasta)
    cmake_parse_arguments(PARSE_ARGV 2 A "" "" "USA")
    file(GLOB fontes CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${pasta}/*.cpp"
         "${CMAKE_SOURCE_DIR}/${pasta}/*.h")
    if(NOT fontes MATCHES "\\.cpp")
        file(WRITE "${CMAKE_BINARY_DIR}/ficha_${nome}_vazio.cpp" "// This floor has no sources yet.\n")
        list(APPEND fontes "${CMAKE_BINARY_DIR}/ficha_${nome}_vazio.cpp")
    endif()
    add_library(ficha_${nome} OBJECT ${fontes})
    target_link_libraries(ficha_${nome} PUBLIC ficha_opcoes)
    ficha_precompilar(ficha_${nome} ficha_core)
    if(nome STREQUAL "database")
        target_include_directories(ficha_database SYSTEM PRIVATE "${FIREBIRD_INCLUDE}")
    endif()
    if(nome STREQUAL "support")
        target_include_directories(ficha_support SYSTEM PRIVATE
            "${WMF_INCLUDE}" "${FREETYPE_INCLUDE}")
    endif()
    if(nome STREQUAL "forms")
        target_link_libraries(ficha_forms PUBLIC Qt6::PrintSupport)
    endif()
    set_property(GLOBAL PROPERTY FICHA_USA_${nome} "${A_USA}")
    set_property(GLOBAL APPEND PROPERTY FICHA_TODOS_OS_ANDARES ${nome})
endfunction()

# Links a program with the objects of some floors and of everything those stand on.
function(ficha_ligar alvo)
    set(todos "")
    foreach(andar IN LISTS ARGN)
        get_property(usa GLOBAL PROPERTY FICHA_USA_${andar})
        list(APPEND todos ${usa} ${andar})
    endforeach()
    list(REMOVE_DUPLICATES todos)
    foreach(andar IN LISTS todos)
        target_link_libraries(${alvo} PRIVATE ficha_${andar})
    endforeach()
    target_link_libraries(${alvo} PRIVATE ficha_opcoes ficha_layouts "${FIREBIRD_CLIENT}"
                          "${WMF_PLAYER}")
    if(TARGET ficha_layouts_resources_1)
        target_link_libraries(${alvo} PRIVATE ficha_layouts_resources_1)
    endif()
endfunction()

# The library itself, target ficha::ficha.
function(ficha_biblioteca)
    get_property(andares GLOBAL PROPERTY FICHA_TODOS_OS_ANDARES)
    file(WRITE "${CMAKE_BINARY_DIR}/ficha_biblioteca.cpp" "// The library is its floors' objects.\n")
    add_library(ficha SHARED "${CMAKE_BINARY_DIR}/ficha_biblioteca.cpp")
    ficha_ligar(ficha ${andares})
    target_include_directories(ficha PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(ficha PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets Qt6::Svg)
    add_library(ficha::ficha ALIAS ficha)
    install(TARGETS ficha LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(DIRECTORY "${CMAKE_SOURCE_DIR}/src/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/ficha"
            FILES_MATCHING PATTERN "*.h")
endfunction()
