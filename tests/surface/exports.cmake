# Fails unless LIBRARY exports exactly the operations NAMES. NM: the tool that lists symbols.
execute_process(COMMAND ${NM} -D --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^ \n]+\n" exported "${symbols}")
list(TRANSFORM exported STRIP)
set(missing ${NAMES})
list(REMOVE_ITEM missing ${exported})
list(REMOVE_ITEM exported ${NAMES})
list(FILTER exported EXCLUDE REGEX "^_") # the linker's and the standard library's own
if(missing OR exported)
    message(FATAL_ERROR "declared and not exported: ${missing}\nexported and not declared: ${exported}")
endif()
