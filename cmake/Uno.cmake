# Finds what the LibreOffice link is built with: the office's program folder (its type
# libraries types.rdb and types/offapi.rdb), the SDK (cppumaker, the headers and libraries of
# the UNO runtime). Debian: scripts/setup-libreoffice.sh installs them.
#
# Sets VERDANE_UNO_FOUND, LO_PROGRAM_DIR, LO_SDK_DIR, LO_CPPUMAKER, LO_TYPES_RDB, LO_OFFAPI_RDB.

set(_lo_prefixes /usr/lib/libreoffice /usr/local/lib/libreoffice /opt/libreoffice)
file(GLOB _lo_opt LIST_DIRECTORIES true /opt/libreoffice*)
list(APPEND _lo_prefixes ${_lo_opt})

find_path(LO_PROGRAM_DIR NAMES types.rdb
          PATHS ${_lo_prefixes} PATH_SUFFIXES program NO_DEFAULT_PATH)
find_path(LO_SDK_DIR NAMES include/cppuhelper/bootstrap.hxx
          PATHS ${_lo_prefixes} PATH_SUFFIXES sdk NO_DEFAULT_PATH)
find_program(LO_CPPUMAKER cppumaker PATHS ${LO_SDK_DIR}/bin NO_DEFAULT_PATH)

set(VERDANE_UNO_FOUND OFF)
if(LO_PROGRAM_DIR AND LO_SDK_DIR AND LO_CPPUMAKER
   AND EXISTS ${LO_PROGRAM_DIR}/types/offapi.rdb AND EXISTS ${LO_SDK_DIR}/lib/libuno_cppu.so)
    set(VERDANE_UNO_FOUND ON)
    set(LO_TYPES_RDB ${LO_PROGRAM_DIR}/types.rdb)
    set(LO_OFFAPI_RDB ${LO_PROGRAM_DIR}/types/offapi.rdb)
    message(STATUS "LibreOffice SDK : ${LO_SDK_DIR}, programme : ${LO_PROGRAM_DIR}")
else()
    message(STATUS "LibreOffice SDK introuvable : le lien LibreOffice n'est pas construit "
                   "(scripts/setup-libreoffice.sh l'installe)")
endif()
