// Linked into every fuzzer: silences the warnings of the library, which would drown the output.
#include "xmlattr/core/Log.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    Core::Log::setHandler([](Core::String const&) {});
    return 0;
}
