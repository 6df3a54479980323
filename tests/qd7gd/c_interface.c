/* The C interface used from C: the header compiles as C and the names link unmangled. Writes a
 * value, reads it back and enciphers a text; exit status 0 when all is as expected. */
#include "qd7gd.h"

#include <stdio.h>
#include <string.h>

int main(void)
{
    char buffer[255];
    char value[255];
    memset(value, ' ', sizeof value);
    memcpy(value, "from C\0", 7);
    if (UpdateRegistry("CInterface", value) != 0) {
        puts("UpdateRegistry failed");
        return 1;
    }
    if (ReadRegistry("CInterface", buffer) != 6 || strcmp(buffer, "from C") != 0) {
        puts("ReadRegistry gave another value");
        return 1;
    }
    if (Encrypt("Secret pw", "Hostelm4_Brandiwickt7", buffer) != 9 || strcmp(buffer, "zGqu'FSU0") != 0) {
        puts("Encrypt gave another text");
        return 1;
    }
    if (DeleteRegistry("CInterface") != 0 || ReadRegistry("CInterface", buffer) != 0) {
        puts("DeleteRegistry failed");
        return 1;
    }
    puts("C interface: ok");
    return 0;
}
