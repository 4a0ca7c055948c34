// What all fuzzers begin with: warnings would drown what they say.
#include "xmlattr/core/Log.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    Core::Log::setHandler([](Core::String const&) {});
    return 0;
}
