// Loads and unloads the shared library a hundred times: nothing may stay, neither memory nor the
// library itself.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <malloc.h>
#include <memory>

namespace {

bool isLoaded() {
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
    File const maps(std::fopen("/proc/self/maps", "r"), std::fclose);
    char line[4096];
    while (maps && std::fgets(line, sizeof line, maps.get()))
        if (std::strstr(line, "libxmlattr")) return true;
    return false;
}

int fail(char const* what) {
    std::fprintf(stderr, "%s\n", what);
    return EXIT_FAILURE;
}

} // namespace

int main(int, char** arguments) {
    // The first rounds settle what the C library keeps for itself.
    constexpr int settled = 20;
    std::size_t before = 0;
    for (int round = 0; round < settled + 100; ++round) {
        void* const library = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
        if (!library) return fail(dlerror());
        if (!dlsym(library, "_ZN3Xml18DefaultBorderStyleE")) return fail("the library has no DefaultBorderStyle");
        if (!isLoaded()) return fail("the library does not show while it is loaded");
        dlclose(library);
        if (isLoaded()) return fail("the library stays loaded");
        std::size_t const used = mallinfo2().uordblks;
        if (round == settled) before = used;
        if (round > settled && used > before) return fail("memory is left behind");
    }
    return EXIT_SUCCESS;
}
