#include "xmlattr/core/Log.h"

#include <cstdio>
#include <mutex>
#include <utility>

namespace Core {

namespace {

struct State {
    std::mutex mutex;
    Log::Handler handler;
};

// Made on first use, since warnings may come from start-up code of any order.
State& state() {
    static State instance;
    return instance;
}

} // namespace

Log::Handler Log::setHandler(Handler handler) {
    std::scoped_lock const lock(state().mutex);
    return std::exchange(state().handler, std::move(handler));
}

void Log::warning(String const& message) {
    Handler handler;
    {
        // The handler runs outside the lock, so that it may log or be replaced by itself.
        std::scoped_lock const lock(state().mutex);
        handler = state().handler;
    }
    if (handler)
        handler(message);
    else
        std::fprintf(stderr, "xmlattr: warning: %s\n", message.toUtf8().c_str());
}

} // namespace Core
