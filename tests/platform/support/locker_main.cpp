// Stands in for a collector: holds an exclusive flock on the file named by its argument, says
// "locked" once it has it, and lets go when its stdin closes.
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FILE\n", argv[0]);
        return 2;
    }
    int fd = ::open(argv[1], O_RDWR | O_CREAT, 0666);
    if (fd < 0)
        fd = ::open(argv[1], O_RDONLY);
    if (fd < 0) {
        std::perror(argv[1]);
        return 1;
    }
    while (::flock(fd, LOCK_EX) != 0) {
        if (errno != EINTR) {
            std::perror("flock");
            return 1;
        }
    }
    std::fputs("locked\n", stdout);
    std::fflush(stdout);

    char buffer[256];
    for (;;) {
        const ssize_t got = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (got == 0 || (got < 0 && errno != EINTR))
            break;
    }
    ::close(fd);
    return 0;
}
