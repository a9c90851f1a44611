# The names of nomes.txt, compiled: every member is named from a class derived of its owner, which
# sees what hosts that derive see. A wrong name is an error at its line of the list.
# ficha_nomes(lista saida) writes the source.
function(ficha_nomes lista saida)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${lista}")
    file(STRINGS "${lista}" linhas ENCODING UTF-8)
    # Where the unit of each class is.
    file(GLOB unidades CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}/src"
         "${CMAKE_SOURCE_DIR}/src/*/U*.h")
    set(cabecalhos "")
    set(corpo "")
    set(numero 0)
    foreach(linha IN LISTS linhas)
        math(EXPR numero "${numero} + 1")
        if(linha MATCHES "^#" OR NOT linha MATCHES "^([A-Za-z0-9]+) +([a-z]+) +(.+)$")
            continue()
        endif()
        set(classe "${CMAKE_MATCH_1}")
        set(tipo "${CMAKE_MATCH_2}")
        separate_arguments(nomes UNIX_COMMAND "${CMAKE_MATCH_3}")
        string(APPEND corpo "#line ${numero} \"${lista}\"\n")
        if(tipo STREQUAL "livres")
            list(POP_FRONT nomes cabecalho)
            list(APPEND cabecalhos "${cabecalho}")
            foreach(nome IN LISTS nomes)
                string(APPEND corpo "using ficha::${nome}; ")
            endforeach()
        elseif(tipo STREQUAL "membros")
            string(SUBSTRING "${classe}" 1 -1 unidade)
            string(PREPEND unidade "U")
            set(achado "${unidades}")
            list(FILTER achado INCLUDE REGEX "/${unidade}\\.h$")
            if(NOT achado)
                string(APPEND corpo "#error ${classe} has no unit ${unidade}.h\n")
                continue()
            endif()
            list(APPEND cabecalhos "${achado}")
            string(APPEND corpo "struct Nomes${numero} : ficha::${classe} { ")
            foreach(nome IN LISTS nomes)
                string(APPEND corpo "using ficha::${classe}::${nome}; ")
            endforeach()
            string(APPEND corpo "};")
        endif()
        string(APPEND corpo "\n")
    endforeach()
    list(REMOVE_DUPLICATES cabecalhos)
    set(texto "")
    foreach(cabecalho IN LISTS cabecalhos)
        string(APPEND texto "#include \"${cabecalho}\"\n")
    endforeach()
    string(APPEND texto "namespace {\n${corpo}}\n")
    file(CONFIGURE OUTPUT "${saida}" CONTENT "${texto}" @ONLY)
endfunction()

ficha_nomes("${CMAKE_CURRENT_SOURCE_DIR}/house/nomes.txt"
            "${CMAKE_CURRENT_BINARY_DIR}/nomes/nomes.cpp")
ficha_nomes("${CMAKE_CURRENT_SOURCE_DIR}/house/nomes-perdidos.txt"
            "${CMAKE_CURRENT_BINARY_DIR}/nomes/perdidos.cpp")

# Part of the tests of the house, so that a lost name stops the build; and a list of names that
# are not there, which must not compile.
foreach(alvo nomes perdidos)
    add_library(${alvo} OBJECT EXCLUDE_FROM_ALL "${CMAKE_CURRENT_BINARY_DIR}/nomes/${alvo}.cpp")
    set_target_properties(${alvo} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${alvo} PRIVATE ficha_opcoes)
    target_compile_options(${alvo} PRIVATE -O0 -g0)
endforeach()
add_dependencies(house_tests nomes)

add_test(NAME nomes_perdidos
         COMMAND "${CMAKE_COMMAND}" --build "${CMAKE_BINARY_DIR}" --target perdidos)
set_tests_properties(nomes_perdidos PROPERTIES PASS_REGULAR_EXPRESSION
                     "TNaoExisteFr has no unit.*AguardeExibr")
