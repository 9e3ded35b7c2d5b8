# Fails where the shared library calls what it should not: functions that follow the locale or the environment, keep
# state that threads share, map files, start threads, or end the process.
#
#     cmake -DNM=nm -DLIBRARY=libquillon.so -P CheckImports.cmake
set(forbidden
    "asctime|ctime|gmtime|localtime|mktime|strtok|strerror|rand|getenv|secure_getenv|setlocale|newlocale|tzset"
    "strto[a-z]+|wcsto[a-z]+|ato[a-z]+|v?sn?printf|v?swprintf|s?scanf|isspace|isdigit|isalpha|tolower|toupper"
    "mmap|mmap64|aio_[a-z0-9_]+|io_uring[a-z_]*|syscall|pthread_create|fork|system|popen|dlopen|socket"
    "signal|sigaction|abort|exit|_exit|puts|printf|putchar")
list(JOIN forbidden "|" forbidden)

execute_process(COMMAND "${NM}" -D --undefined-only "${LIBRARY}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL " (${forbidden})(@|\n)" found "${symbols}")
if(NOT symbols MATCHES " XML_Parse\n")
    message(FATAL_ERROR "no list of imports: ${symbols}")
endif()
if(found)
    message(FATAL_ERROR "${LIBRARY} calls${found}")
endif()
