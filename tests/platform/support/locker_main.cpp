// Stands in for a collector: holds an exclusive flock on the file named by its argument, says
// "locked" once it has it, and lets go when its stdin closes.
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    const int fd = argc == 2 ? ::open(argv[1], O_RDONLY | O_CREAT, 0666) : -1;
    if (fd < 0 || ::flock(fd, LOCK_EX) != 0)
        return 1;
    std::puts("locked");
    std::fflush(stdout);
    char buffer[256];
    while (::read(STDIN_FILENO, buffer, sizeof buffer) > 0) { }
    return 0;
}
