/* The header compiles as C and all five names link unmangled; exit status 0 when they work. */
#include "qd7gd.h"

#include <stdio.h>
#include <string.h>

int main(void)
{
    char value[255] = "from C", buffer[255];
    const char* key = "Hostelm4_Brandiwickt7";
    const int ok = UpdateRegistry("CInterface", value) == 0 && ReadRegistry("CInterface", buffer) == 6
        && strcmp(buffer, "from C") == 0 && Encrypt("Secret pw", key, buffer) == 9 && strcmp(buffer, "zGqu'FSU0") == 0
        && Decrypt(buffer, key, value) == 9 && strcmp(value, "Secret pw") == 0 && DeleteRegistry("CInterface") == 0
        && ReadRegistry("CInterface", buffer) == 0;
    puts(ok ? "C interface: ok" : "C interface: failed");
    return ok ? 0 : 1;
}
