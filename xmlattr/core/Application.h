// The configuration of the program that uses the library: texts by key.
#pragma once

#include "xmlattr/core/String.h"

namespace Core {

// Keys that this library reads: "DefaultFontFamily" and "DefaultFontSize" when it is loaded, and
// "MeasurementUnit" whenever a bare number is read as a length or percentage. Any thread may call
// any of these functions.
class XMLATTR_API Application {
public:
    // The value of the key, or `fallback` when there is none.
    static String getStringConfigValue(String const& key, String const& fallback);
    // The same for a key whose value reads as an integer; `fallback` also when it does not.
    static int getIntConfigValue(String const& key, int fallback);
    // Whether the key has exactly this value. Allocates nothing.
    static bool isConfigValue(std::u16string_view key, std::u16string_view value);

    static void setConfigValue(String const& key, String const& value);
    // Forgets every value.
    static void clearConfig();
};

} // namespace Core
