message(FATAL_ERROR "This is the client's module, not the library's.")
