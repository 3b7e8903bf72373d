# Checks the size of the library as it is delivered, without symbols:
# cmake -DLIBRARY=FILE -DSTRIP=PROGRAM -DCOPY=FILE -DMOST_BYTES=NUMBER -P library_size.cmake
execute_process(COMMAND "${STRIP}" -o "${COPY}" "${LIBRARY}" COMMAND_ERROR_IS_FATAL ANY)
file(SIZE "${COPY}" size)
message(STATUS "${LIBRARY} has ${size} bytes without symbols, ${MOST_BYTES} at most")
if(size GREATER MOST_BYTES)
    message(FATAL_ERROR "The library is too large.")
endif()
