#include "bytes/TranscodedSource.h"

#include "text/Text.h"
#include "xmlattr/catalogue/text/Words.h"

#include <algorithm>

#ifdef XMLATTR_HAS_ICONV
#include <array>
#include <cerrno>
#include <cstring>

#include <iconv.h>
#endif

namespace Command {

namespace {

constexpr std::string_view ownEncodings[] = {"utf-8",      "utf-16",   "utf-16be",     "utf-16le",
                                             "iso-8859-1", "us-ascii", "windows-1252", "cp1252"};

// What the XML declaration of an ASCII text says; empty when it says nothing.
std::string_view declaredEncoding(std::string_view start) {
    if (!start.starts_with("<?xml")) return {};
    std::string_view const declaration = start.substr(0, start.find("?>"));
    std::size_t const at = declaration.find("encoding");
    if (at == std::string_view::npos) return {};
    std::string_view rest = Xml::trimXmlSpaceStart(declaration.substr(at + std::string_view("encoding").size()));
    if (!rest.starts_with('=')) return {};
    rest = Xml::trimXmlSpaceStart(rest.substr(1));
    if (!rest.starts_with('"') && !rest.starts_with('\'')) return {};
    std::size_t const end = rest.find(rest[0], 1);
    return end == std::string_view::npos ? std::string_view() : rest.substr(1, end - 1);
}

} // namespace

std::string foreignEncoding(std::string_view start) {
    using namespace std::string_view_literals;
    if (start.starts_with("\0\0\xFE\xFF"sv) || start.starts_with("\0\0\0<"sv)) return "UTF-32BE";
    if (start.starts_with("\xFF\xFE\0\0"sv) || start.starts_with("<\0\0\0"sv)) return "UTF-32LE";
    std::string_view const declared = declaredEncoding(start);
    bool const isOwn =
        std::ranges::any_of(ownEncodings, [&](std::string_view own) { return Xml::equalsNoCase(declared, own); });
    return isOwn ? std::string() : std::string(declared);
}

#ifdef XMLATTR_HAS_ICONV

struct TranscodedSource::State {
    iconv_t converter;
    std::array<char, blockSize> input;
    std::size_t pending = 0; // in the input
    bool isAtEnd = false;

    explicit State(iconv_t converter) : converter(converter) {}
    State(State const&) = delete;
    State& operator=(State const&) = delete;
    ~State() { iconv_close(converter); }
};

std::unique_ptr<TranscodedSource> TranscodedSource::open(ByteSource& source, std::string const& encoding) {
    // What XML has in such names. One with a slash is an instruction to some implementations.
    auto const isNamePart = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_' ||
               c == '.';
    };
    if (!std::ranges::all_of(encoding, isNamePart)) return nullptr;
    auto* const converter = iconv_open("UTF-8", encoding.c_str());
    if (reinterpret_cast<std::intptr_t>(converter) == -1) return nullptr;
    return std::unique_ptr<TranscodedSource>(
        new TranscodedSource(source, encoding, std::make_unique<State>(converter)));
}

std::size_t TranscodedSource::read(std::span<char> buffer) {
    char* out = buffer.data();
    std::size_t room = buffer.size();
    while (out == buffer.data() && !failed) {
        if (!state->isAtEnd && state->pending < state->input.size()) {
            std::size_t const count = source.read(std::span(state->input).subspan(state->pending));
            state->pending += count;
            state->isAtEnd = count == 0;
        }
        if (state->isAtEnd && (state->pending == 0 || source.failure())) {
            failed = source.failure();
            break;
        }
        char* in = state->input.data();
        bool const isConverted =
            iconv(state->converter, &in, &state->pending, &out, &room) != static_cast<std::size_t>(-1);
        int const problem = isConverted ? 0 : errno;
        std::memmove(state->input.data(), in, state->pending);
        // The last character may be cut between two blocks, but not at the end.
        if (problem == EILSEQ || (problem == EINVAL && state->isAtEnd))
            failed = SourceFailure{"encoding",
                                   "the file is not in " + printable(encoding) + ", the encoding that it declares"};
    }
    return static_cast<std::size_t>(out - buffer.data());
}

#else

struct TranscodedSource::State {};

std::unique_ptr<TranscodedSource> TranscodedSource::open(ByteSource&, std::string const&) {
    return nullptr;
}

std::size_t TranscodedSource::read(std::span<char>) {
    (void)source;
    return 0;
}

#endif

TranscodedSource::TranscodedSource(ByteSource& source, std::string encoding, std::unique_ptr<State> state)
    : source(source), encoding(std::move(encoding)), state(std::move(state)) {}

TranscodedSource::~TranscodedSource() = default;

} // namespace Command
