// Collects the warnings of the library, with the text that each of them is about.
#include <xmlattr/xmlattr.h>

#include <iostream>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace {

// While it lives, warnings go into a list and no longer to standard error. Any thread may parse meanwhile.
class WarningList {
public:
    WarningList() {
        before = Core::Log::setHandler([this](Core::String const& message) {
            std::lock_guard const guard(lock);
            messages.push_back(message.toUtf8());
        });
    }
    WarningList(WarningList const&) = delete;
    WarningList& operator=(WarningList const&) = delete;
    ~WarningList() { Core::Log::setHandler(before); }

    // What came since the last call.
    std::vector<std::string> take() {
        std::lock_guard const guard(lock);
        return std::exchange(messages, {});
    }

private:
    Core::Log::Handler before;
    std::mutex lock;
    std::vector<std::string> messages;
};

} // namespace

int main() {
    WarningList warnings;
    for (char16_t const* const text : {u"rgb(1,2,3)", u"rgb-icc(1,2,3,#Press)", u"spot-color(Gold)", u"no-color"}) {
        Xml::TXmlAttribute<Core::SmartPtr<Drawing::Color>> color;
        bool const isAccepted = color.parseValue(text);
        std::cout << Core::String(text).toUtf8() << " is " << (isAccepted ? "read" : "refused") << "\n";
        for (std::string const& message : warnings.take()) std::cout << "  warning: " << message << "\n";
    }
}
