// How long it takes to load a library and to run its initialisers, next to a library without any:
//
//   xmlattr_startup LIBRARY [RUNS]
//
// Each time in a new process, since a library that is loaded again starts warm.
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// Microseconds, or a negative number when the library does not load.
double load(char const* library) {
    auto const start = std::chrono::steady_clock::now();
    if (!dlopen(library, RTLD_NOW | RTLD_LOCAL)) return -1;
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double loadInNewProcess(char const* library) {
    int ends[2];
    if (pipe(ends) != 0) return -1;
    pid_t const child = fork();
    if (child == 0) {
        double const time = load(library);
        _exit(write(ends[1], &time, sizeof time) == sizeof time ? 0 : 1);
    }
    double time = -1;
    if (read(ends[0], &time, sizeof time) != sizeof time) time = -1;
    close(ends[0]);
    close(ends[1]);
    waitpid(child, nullptr, 0);
    return time;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: xmlattr_startup LIBRARY [RUNS]\n");
        return 2;
    }
    int const runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 101;
    char const* const libraries[] = {argv[1], EMPTY_LIBRARY};
    std::vector<double> times[2];
    for (int i = 0; i < runs; ++i)
        for (int j = 0; j < 2; ++j) times[j].push_back(loadInNewProcess(libraries[j]));
    for (int j = 0; j < 2; ++j) {
        std::sort(times[j].begin(), times[j].end());
        if (times[j].front() < 0) {
            std::fprintf(stderr, "%s does not load\n", libraries[j]);
            return 1;
        }
        std::printf("%-40s least %7.1f us, median %7.1f us\n", libraries[j], times[j].front(),
                    times[j][times[j].size() / 2]);
    }
}
