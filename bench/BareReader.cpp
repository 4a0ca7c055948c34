// Reads a document with the XML reader of the command and does nothing with it:
//
//   xmlattr_bare_reader FILE
#include <expat.h>

#include <cstdio>

int main(int argc, char** argv) {
    std::FILE* const file = argc == 2 ? std::fopen(argv[1], "rb") : nullptr;
    if (!file) {
        std::fprintf(stderr, "usage: xmlattr_bare_reader FILE\n");
        return 2;
    }
    XML_Parser const parser = XML_ParserCreateNS(nullptr, '\x1F');
    int elements = 0;
    XML_SetUserData(parser, &elements);
    XML_SetElementHandler(
        parser, [](void* count, XML_Char const*, XML_Char const**) { ++*static_cast<int*>(count); }, nullptr);
    constexpr int blockSize = 64 << 10;
    for (bool isFinal = false; !isFinal;) {
        void* const block = XML_GetBuffer(parser, blockSize);
        auto const size = static_cast<int>(std::fread(block, 1, blockSize, file));
        isFinal = size < blockSize;
        if (XML_ParseBuffer(parser, size, isFinal) != XML_STATUS_OK) {
            std::fprintf(stderr, "%s\n", XML_ErrorString(XML_GetErrorCode(parser)));
            return 1;
        }
    }
    std::printf("%d elements\n", elements);
    XML_ParserFree(parser);
    std::fclose(file);
}
