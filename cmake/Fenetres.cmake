# The desktop's windows, one library per subsystem (its qt/ folder), linked into `verdane` only.
#
#   verdane_fenetres(<library> INSCRIRE <function> ENTETE <header> [SOURCES <file>...]
#                    [LIENS <target>...])
# makes the library (every .cpp of the folder unless SOURCES says otherwise), links it into
# `verdane`, adds the folder's tests (tests/<subsystem>/qt) when they exist, and records the
# function that puts the subsystem's forms in the run's registry, declared in <header>.
# verdane_ecrire_fenetres() then writes the one function `verdane` calls at start
# (FenetresInscrites.h in the build folder), calling each recorded function in turn.
function(verdane_fenetres bibliotheque)
    cmake_parse_arguments(F "" "INSCRIRE;ENTETE" "SOURCES;LIENS" ${ARGN})
    if(NOT F_SOURCES)
        file(GLOB F_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    endif()
    add_library(${bibliotheque} STATIC ${F_SOURCES})
    target_link_libraries(${bibliotheque} PUBLIC verdane_core ${F_LIENS})
    set_target_properties(${bibliotheque} PROPERTIES AUTOMOC ON)
    verdane_options(${bibliotheque})
    target_link_libraries(verdane PRIVATE ${bibliotheque})
    set_property(GLOBAL APPEND PROPERTY VERDANE_FENETRES_ENTETES ${F_ENTETE})
    set_property(GLOBAL APPEND PROPERTY VERDANE_FENETRES_FONCTIONS ${F_INSCRIRE})

    file(RELATIVE_PATH dossier ${PROJECT_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    set(essais ${PROJECT_SOURCE_DIR}/tests/${dossier})
    if(VERDANE_TESTS AND EXISTS ${essais}/CMakeLists.txt)
        add_subdirectory(${essais} ${CMAKE_BINARY_DIR}/tests/${dossier})
    endif()
endfunction()

function(verdane_ecrire_fenetres)
    get_property(entetes GLOBAL PROPERTY VERDANE_FENETRES_ENTETES)
    get_property(fonctions GLOBAL PROPERTY VERDANE_FENETRES_FONCTIONS)
    set(texte "// Written by CMake (cmake/Fenetres.cmake): the window libraries built into verdane.\n")
    string(APPEND texte "#pragma once\n#include \"shell/etat/Contexte.h\"\n")
    foreach(entete IN LISTS entetes)
        string(APPEND texte "#include \"${entete}\"\n")
    endforeach()
    string(APPEND texte "namespace verdane {\n")
    string(APPEND texte "inline void InscrireFenetres([[maybe_unused]] Contexte& ctx) {\n")
    foreach(fonction IN LISTS fonctions)
        string(APPEND texte "    qt::${fonction}(ctx);\n")
    endforeach()
    string(APPEND texte "}\n} // namespace verdane\n")
    set(dossier ${CMAKE_BINARY_DIR}/genere/shell/main)
    file(CONFIGURE OUTPUT ${dossier}/FenetresInscrites.h CONTENT "${texte}" @ONLY)
    target_include_directories(verdane PRIVATE ${CMAKE_BINARY_DIR}/genere)
endfunction()

#   verdane_tests_fenetres(<executable> LIENS <target>... [TIMEOUT <seconds>])
# A window test program of the folder's .cpp files, run off screen as one test.
function(verdane_tests_fenetres executable)
    cmake_parse_arguments(F "" "TIMEOUT" "LIENS" ${ARGN})
    if(NOT F_TIMEOUT)
        set(F_TIMEOUT 300)
    endif()
    find_package(GTest REQUIRED)
    find_package(Qt6 REQUIRED COMPONENTS Test)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    add_executable(${executable} ${sources})
    target_include_directories(${executable} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${executable} PRIVATE ${F_LIENS} Qt6::Test GTest::gtest)
    verdane_options(${executable})
    target_compile_definitions(${executable} PRIVATE VERDANE_BIN_DIR="${PROJECT_BINARY_DIR}"
                               VERDANE_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${executable} COMMAND ${executable})
    # Qt keeps some of its own objects to the end of the program (fonts, platform): under the
    # sanitizers the leak report is read by hand, not by the test.
    set(environnement "QT_QPA_PLATFORM=offscreen")
    if(VERDANE_SANITIZE)
        list(APPEND environnement "ASAN_OPTIONS=detect_leaks=0")
    endif()
    set_tests_properties(${executable} PROPERTIES ENVIRONMENT "${environnement}"
                         TIMEOUT ${F_TIMEOUT})
endfunction()
