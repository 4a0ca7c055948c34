// Has a document read on one thread and judged on another.
#pragma once

#include "xml/XmlReader.h"

#include <array>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>
#include <vector>

namespace Command {

// Hands what it hears on to another handler: at once, or, from start() on, in batches of elements that a second thread
// tells it. The handler hears the same things in the same order, one at a time. Where it may ask for texts and
// namespaces, which is in stylesheets, where a part of the document is missing, and of a tag that is longer than a
// batch, it is told at once, after all that came before.
class Relay final : public XmlHandler {
public:
    explicit Relay(XmlHandler& handler) : handler(handler) {}
    Relay(Relay const&) = delete;
    Relay& operator=(Relay const&) = delete;
    ~Relay() override;

    // Throws std::system_error when the machine has no more threads.
    void start();
    bool isStarted() const { return thread.joinable(); }

    // Each may throw what the handler threw before.
    void startElement(XmlElement const& element, Tag& tag) override;
    bool wantsText(XmlElement const& element) override { return isDirect(element) && handler.wantsText(element); }
    void text(XmlText const& text) override { handler.text(text); }
    void missingContent() override;
    // Waits until the handler has been told everything.
    void settle();

private:
    struct Element {
        std::string_view space, name;
        std::size_t attributes; // how many of the batch are its own
        int depth;
        TagSource source;
    };
    // The views are into the text.
    struct Batch {
        std::unique_ptr<char[]> text; // null until start()
        std::size_t size = 0;         // of what is in it
        std::vector<Element> elements;
        std::vector<XmlAttributeText> attributes;

        std::string_view keep(std::string_view part);
        void clear();
    };

    // Whether the handler hears of it at once.
    bool isDirect(XmlElement const& element) const { return !isStarted() || element.namespaces.hasXslt(); }
    void handOver();
    void work();
    void tell(Batch const& batch);

    XmlHandler& handler;
    std::array<Batch, 4> batches; // in turn
    std::size_t filled = 0;       // batches that were handed over; the next one is being filled

    std::mutex mutex;
    std::condition_variable changed;
    std::size_t handed = 0, told = 0; // batches
    bool isEnding = false;
    std::exception_ptr thrown; // by the handler, which is told nothing more then
    std::jthread thread;       // last, so that it ends before what it uses does
};

} // namespace Command
