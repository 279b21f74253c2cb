# When the sources were as they are: the same sources make the same packages, whenever they are built.
# `source_date` is in seconds since 1970, `debian_date` as Debian's changelogs have it.

set(source_date "$ENV{SOURCE_DATE_EPOCH}")
if(source_date STREQUAL "")
    execute_process(COMMAND git -C ${PROJECT_SOURCE_DIR} log -1 --format=%ct
        OUTPUT_VARIABLE source_date ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
endif()
if(source_date STREQUAL "")
    # Files out of the source archive are as old as what they were committed with.
    file(TIMESTAMP ${PROJECT_SOURCE_DIR}/CHANGELOG.md source_date "%s" UTC)
endif()
set(given_date "$ENV{SOURCE_DATE_EPOCH}")
set(ENV{SOURCE_DATE_EPOCH} ${source_date})
string(TIMESTAMP debian_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
if(given_date STREQUAL "")
    unset(ENV{SOURCE_DATE_EPOCH})
else()
    set(ENV{SOURCE_DATE_EPOCH} ${given_date})
endif()

# The changelog begins with the version that these sources are.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md release REGEX "^## " LIMIT_COUNT 1)
if(NOT release MATCHES "^## ${PROJECT_VERSION}, ([0-9]+-[0-9]+-[0-9]+)$")
    message(FATAL_ERROR "CHANGELOG.md does not begin with \"## ${PROJECT_VERSION}, DATE\": ${release}")
endif()
set(release_date ${CMAKE_MATCH_1})
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
