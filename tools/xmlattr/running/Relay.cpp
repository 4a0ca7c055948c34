#include "running/Relay.h"

#include <algorithm>
#include <span>

namespace Command {

namespace {

constexpr std::size_t batchSize = 128 << 10; // of texts

class RelayedTag final : public XmlHandler::Tag {
public:
    explicit RelayedTag(TagSource const& from) : from(from) {}
    TagSource source() override { return from; }

private:
    TagSource from;
};

std::size_t sizeOf(XmlElement const& element, TagSource const& source) {
    std::size_t size = element.space.size() + element.name.size() + source.bytes.size();
    for (XmlAttributeText const& attribute : element.attributes)
        size += attribute.space.size() + attribute.name.size() + attribute.value.size();
    return size;
}

} // namespace

std::string_view Relay::Batch::keep(std::string_view part) {
    char* const begin = text.get() + size;
    size += part.copy(begin, part.size());
    return {begin, part.size()};
}

void Relay::Batch::clear() {
    size = 0;
    elements.clear();
    attributes.clear();
}

Relay::~Relay() {
    {
        std::scoped_lock const lock(mutex);
        isEnding = true;
    }
    changed.notify_all();
}

void Relay::start() {
    for (Batch& batch : batches) batch.text = std::make_unique_for_overwrite<char[]>(batchSize);
    thread = std::jthread([this] { work(); });
}

void Relay::startElement(XmlElement const& element, Tag& tag) {
    if (isDirect(element)) {
        settle();
        return handler.startElement(element, tag);
    }
    TagSource source = tag.source();
    std::size_t const size = sizeOf(element, source);
    if (batches[filled % batches.size()].size + size > batchSize) handOver();
    if (size > batchSize) {
        settle();
        return handler.startElement(element, tag);
    }
    Batch& batch = batches[filled % batches.size()];
    source.bytes = batch.keep(source.bytes);
    batch.elements.push_back(
        {batch.keep(element.space), batch.keep(element.name), element.attributes.size(), element.depth, source});
    for (auto const& [space, name, value] : element.attributes)
        batch.attributes.push_back({batch.keep(space), batch.keep(name), batch.keep(value)});
}

void Relay::missingContent() {
    settle();
    handler.missingContent();
}

void Relay::settle() {
    if (!isStarted()) return;
    if (!batches[filled % batches.size()].elements.empty()) handOver();
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return told == handed; });
    if (thrown) std::rethrow_exception(thrown);
}

void Relay::handOver() {
    ++filled;
    std::unique_lock lock(mutex);
    ++handed;
    changed.notify_all();
    changed.wait(lock, [this] { return handed - told < batches.size(); });
    if (thrown) std::rethrow_exception(thrown);
}

void Relay::work() {
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return told < handed || isEnding; });
        if (told == handed) return;
        Batch& batch = batches[told % batches.size()];
        bool const isWanted = !thrown;
        lock.unlock();
        std::exception_ptr problem;
        try {
            if (isWanted) tell(batch);
        } catch (...) {
            problem = std::current_exception();
        }
        batch.clear();
        lock.lock();
        ++told;
        if (problem) thrown = problem;
        changed.notify_all();
    }
}

void Relay::tell(Batch const& batch) {
    static Namespaces const none; // of a stylesheet
    std::span<XmlAttributeText const> rest = batch.attributes;
    for (Element const& element : batch.elements) {
        RelayedTag tag(element.source);
        handler.startElement({element.space, element.name, rest.first(element.attributes), element.depth, none}, tag);
        rest = rest.subspan(element.attributes);
    }
}

} // namespace Command
