// Loads the plugins that it is given, uses each and frees it, ten times over:
//   host LIBRARY:FUNCTION...
// A FUNCTION takes nothing and gives 0; where it is empty, the library is only loaded and freed.
#include <cstdio>
#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace {

using Function = int (*)();

#ifdef _WIN32
void* load(std::string const& file) {
    return LoadLibraryA(file.c_str());
}
Function find(void* library, std::string const& name) {
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name.c_str())));
}
bool release(void* library) {
    return FreeLibrary(static_cast<HMODULE>(library)) != 0;
}
bool isLoaded(std::string const& file) {
    return GetModuleHandleA(file.c_str()) != nullptr;
}
#else
void* load(std::string const& file) {
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}
Function find(void* library, std::string const& name) {
    return reinterpret_cast<Function>(dlsym(library, name.c_str()));
}
bool release(void* library) {
    return dlclose(library) == 0;
}
bool isLoaded(std::string const& file) {
    return dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD) != nullptr;
}
#endif

bool useOnce(std::string const& file, std::string const& name) {
    void* const library = load(file);
    bool done = library != nullptr;
    if (done && !name.empty()) {
        Function const function = find(library, name);
        done = function && function() == 0;
    }
    return done && release(library) && !isLoaded(file);
}

} // namespace

int main(int count, char** arguments) {
    for (int round = 0; round < 10; ++round)
        for (int index = 1; index < count; ++index) {
            std::string const argument = arguments[index];
            auto const colon = argument.rfind(':');
            if (!useOnce(argument.substr(0, colon), argument.substr(colon + 1))) {
                std::fprintf(stderr, "round %d: %s\n", round, argument.c_str());
                return 1;
            }
        }
    return 0;
}
