# Common compile settings of every target of the project.
#
# The engine's text is single-byte Windows-1252, as models and dossier files are: sources are
# UTF-8, and narrow string literals are compiled to Windows-1252 so that "Création" in the code
# is the same bytes as in a model or a dossier. Code that hands text to a toolkit converts it
# at that edge (utils/Texte.h). Clang keeps literals in UTF-8: it serves the fuzzers only,
# where a message's bytes don't matter.
function(verdane_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wimplicit-fallthrough)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -finput-charset=UTF-8 -fexec-charset=CP1252)
    endif()
    if(VERDANE_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(VERDANE_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-omit-frame-pointer
                               -fno-sanitize-recover=undefined)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
endfunction()
