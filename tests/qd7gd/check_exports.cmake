# cmake -DNM=<nm> -DLIBRARY=<libqd7gd.so> -P check_exports.cmake: fails unless the library's
# dynamic symbol table defines exactly the five functions of the C interface.
execute_process(COMMAND ${NM} -D --defined-only ${LIBRARY} OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[0-9a-fA-F]+ [TtDdBbRrVvWw] [^\n]+" lines "${table}")
list(TRANSFORM lines REPLACE "^[0-9a-fA-F]+ [A-Za-z] " "")
list(SORT lines)
if(NOT lines STREQUAL "Decrypt;DeleteRegistry;Encrypt;ReadRegistry;UpdateRegistry")
    message(FATAL_ERROR "libqd7gd exports: ${lines}")
endif()
