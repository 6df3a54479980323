// A collector's stand-in: says "locked" once it holds an exclusive flock on its argument, until stdin closes.
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
