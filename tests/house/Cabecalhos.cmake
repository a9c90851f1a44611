# Every header compiles alone, without the precompiled headers that would hide a missing include.
# Built only when it is asked for, which the test "cabecalhos" does: one small file per header.

file(GLOB_RECURSE cabecalhos CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}/src"
     "${CMAKE_SOURCE_DIR}/src/*.h")
set(fontes "")
foreach(cabecalho IN LISTS cabecalhos)
    string(REPLACE "/" "_" nome "${cabecalho}")
    set(fonte "${CMAKE_CURRENT_BINARY_DIR}/cabecalhos/${nome}.cpp")
    set(texto "#include \"${cabecalho}\"\n")
    # Left alone when it already says so, so that nothing is compiled again without need.
    set(antes "")
    if(EXISTS "${fonte}")
        file(READ "${fonte}" antes)
    endif()
    if(NOT antes STREQUAL texto)
        file(WRITE "${fonte}" "${texto}")
    endif()
    list(APPEND fontes "${fonte}")
endforeach()

add_library(cabecalhos OBJECT EXCLUDE_FROM_ALL ${fontes})
set_target_properties(cabecalhos PROPERTIES AUTOMOC OFF)
target_link_libraries(cabecalhos PRIVATE ficha_opcoes)
target_include_directories(cabecalhos SYSTEM PRIVATE "${FIREBIRD_INCLUDE}")
target_compile_options(cabecalhos PRIVATE -O0 -g0)

add_test(NAME cabecalhos
         COMMAND "${CMAKE_COMMAND}" --build "${CMAKE_BINARY_DIR}" --target cabecalhos -- -k 0)
