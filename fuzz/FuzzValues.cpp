// Any text for any value type. The first byte picks the type, the rest is the text; what stands before
// the first U+001F in it, if that occurs, is the text of the value that the attribute holds before.
#include "FuzzText.h"
#include "hostile/Promises.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size == 0) return 0;
    Promises::Type const& type = Promises::types[*data % std::size(Promises::types)];
    Core::String text(toText(data + 1, data + size)), before;
    if (int const separator = text.find(u"\x1F"); separator >= 0) {
        before = text.subString(0, separator);
        text = text.subString(separator + 1);
    }
    if (char const* const promise = type.broken(before, text)) {
        std::fprintf(stderr, "%s: %s\nbefore: \"%s\"\ntext: \"%s\"\n", type.name, promise, before.toUtf8().c_str(),
                     text.toUtf8().c_str());
        std::abort();
    }
    return 0;
}
