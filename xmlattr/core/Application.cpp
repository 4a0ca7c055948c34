#include "xmlattr/core/Application.h"

#include "xmlattr/core/Format.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/Text.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <mutex>
#include <shared_mutex>

namespace Core {

namespace {

using Values = std::map<std::u16string, std::u16string, std::less<>>;

// Reads lines "key = value"; blank lines and lines that begin with "#" are passed over.
Values readFile(char const* path) {
    Values values;
    std::ifstream file(path);
    if (!file) {
        Log::warning(String(u"cannot read the configuration file ") + String::fromUtf8(path));
        return values;
    }
    int number = 0;
    for (std::string bytes; std::getline(file, bytes);) {
        ++number;
        String const text = String::fromUtf8(bytes);
        std::u16string_view const line = trim(text);
        if (line.empty() || line.front() == u'#') continue;
        std::size_t const equals = line.find(u'=');
        std::u16string_view const key = trim(line.substr(0, equals));
        if (equals == std::u16string_view::npos || key.empty()) {
            Log::warning(String::fromUtf8(std::string(path) + ":" + std::to_string(number)) +
                         u": no \"key = value\"; the file is not used");
            return {};
        }
        values.insert_or_assign(std::u16string(key), std::u16string(trim(line.substr(equals + 1))));
    }
    return values;
}

struct Configuration {
    std::shared_mutex mutex;
    Values values;
    // Known without the lock, since most programs configure nothing.
    std::atomic<bool> isEmpty = true;

    // Two values are read while the library is loaded, before the program can set any; so the environment
    // may name a file of values.
    Configuration() {
        if (char const* path = std::getenv("XMLATTR_CONFIG"); path && *path) values = readFile(path);
        isEmpty = values.empty();
    }
};

Configuration& configuration() {
    static Configuration instance;
    return instance;
}

// Calls use(value) under the reader's lock when the key has a value.
template <class Use> auto withValue(std::u16string_view key, Use use) {
    if (configuration().isEmpty.load(std::memory_order_acquire)) return use(nullptr);
    std::shared_lock const lock(configuration().mutex);
    Values const& values = configuration().values;
    auto const found = values.find(key);
    return found == values.end() ? use(nullptr) : use(&found->second);
}

} // namespace

String Application::getStringConfigValue(String const& key, String const& fallback) {
    return withValue(
        key, [&](std::u16string const* value) { return value ? String(std::u16string_view(*value)) : fallback; });
}

int Application::getIntConfigValue(String const& key, int fallback) {
    return withValue(key, [&](std::u16string const* value) {
        int number = 0;
        return value && !value->empty() && Format::parseInt(*value, number) ? number : fallback;
    });
}

bool Application::isConfigValue(std::u16string_view key, std::u16string_view value) {
    return withValue(key, [&](std::u16string const* stored) { return stored && *stored == value; });
}

void Application::setConfigValue(String const& key, String const& value) {
    std::unique_lock const lock(configuration().mutex);
    configuration().values.insert_or_assign(std::u16string(key), std::u16string(value));
    configuration().isEmpty = false;
}

void Application::clearConfig() {
    std::unique_lock const lock(configuration().mutex);
    configuration().values.clear();
    configuration().isEmpty = true;
}

} // namespace Core
