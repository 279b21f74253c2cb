# Run by CPack on the folder of files that become the packages: all are as old as the sources.
file(GLOB_RECURSE files LIST_DIRECTORIES true ${CPACK_TEMPORARY_DIRECTORY}/*)
foreach(file IN LISTS files)
    execute_process(COMMAND touch --no-dereference --date=@${CPACK_SOURCE_DATE} ${file}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
