// Keywords of output options.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// The standard that a PDF follows.
enum class XMLATTR_API PDFConformance : std::int32_t {
    Default = 0,
    PdfX1a2003 = 1,
    PdfA1a2005 = 2,
    PdfA1b2005 = 3,
    Pdf508 = 4
};
template <> struct Keywords<PDFConformance> {
    using enum PDFConformance;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<PDFConformance> rows[] = {
        {u"Default", Default},
        {u"PDF/X-1a:2003", PdfX1a2003},
        {u"PDF/A-1a:2005", PdfA1a2005},
        {u"PDF/A-1b:2005", PdfA1b2005},
        {u"PDF508", Pdf508},
    };
    static constexpr std::u16string_view unknownPrints = u"Default";
};

// The encoding of text in AFP output.
enum class XMLATTR_API AFPEncoding : std::int32_t { Ascii = 0, Ebcdic = 1, Utf16 = 2 };
template <> struct Keywords<AFPEncoding> {
    using enum AFPEncoding;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AFPEncoding> rows[] = {{u"ASCII", Ascii}, {u"EBCDIC", Ebcdic}, {u"UTF-16", Utf16}};
    static constexpr bool printsEmpty = true;
};

// The orientation of AFP pages.
enum class XMLATTR_API AFPPrinterLayout : std::int32_t {
    Portrait = 0,
    Landscape = 1,
    ReversePortrait = 2,
    ReverseLandscape = 3,
    Portrait90 = 4,
    Landscape90 = 5
};
template <> struct Keywords<AFPPrinterLayout> {
    using enum AFPPrinterLayout;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<AFPPrinterLayout> rows[] = {
        {u"Portrait", Portrait},
        {u"Landscape", Landscape},
        {u"ReversePortrait", ReversePortrait},
        {u"ReverseLandscape", ReverseLandscape},
        {u"Portrait90", Portrait90},
        {u"Landscape90", Landscape90},
    };
    static constexpr bool printsEmpty = true;
};

// Whether a TrueType font is embedded whole or in part. Intended: exact in case, unlike its neighbours.
enum class TTFEmbedMode : std::int32_t { False = 0, True = 1, Subset = 2 };
template <> struct Keywords<TTFEmbedMode> {
    using enum TTFEmbedMode;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<TTFEmbedMode> rows[] = {{u"false", False}, {u"true", True}, {u"subset", Subset}};
    static constexpr bool printsEmpty = true;
};

// The lighting schemes of 3D annotations, in the order of ISO 32000.
enum class LightingScheme : std::int32_t {
    Artwork = 0,
    None = 1,
    White = 2,
    Day = 3,
    Night = 4,
    Hard = 5,
    Primary = 6,
    Blue = 7,
    Red = 8,
    Cube = 9,
    Cad = 10,
    Headlamp = 11
};
template <> struct Keywords<LightingScheme> {
    using enum LightingScheme;
    static constexpr Case rule = Case::Any;
    static constexpr KeywordRow<LightingScheme> rows[] = {
        {u"artwork", Artwork}, {u"none", None}, {u"white", White},     {u"day", Day},
        {u"night", Night},     {u"hard", Hard}, {u"primary", Primary}, {u"blue", Blue},
        {u"red", Red},         {u"cube", Cube}, {u"cad", Cad},         {u"headlamp", Headlamp},
    };
    static constexpr bool printsEmpty = true;
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
