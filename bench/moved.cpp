// Moves the code of the library: linkers put this section before .text.
asm(".section .text.hot, \"ax\", @progbits\n"
    ".skip " VORN_MOVED_BY ", 0x90\n"
    ".text\n");
