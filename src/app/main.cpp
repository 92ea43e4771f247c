#include "app/MainModule.h"

#include <csignal>

int main(int argc, char* argv[]) {
    // A write past the file size limit then fails with EFBIG and is reported
    // as any failed write, instead of killing the program.
    std::signal(SIGXFSZ, SIG_IGN);
    return brimo::Main(argc, argv);
}
