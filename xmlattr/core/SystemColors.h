// The system colours of CSS 2 with the values of a plain desktop.
#pragma once

#include "xmlattr/core/WordTable.h"

namespace Core {

// 0xRRGGBB
inline constexpr WordRow<int> systemColors[] = {
    {u"ActiveBorder", 0xB4B4B4},   {u"ActiveCaption", 0x99B4D1},   {u"AppWorkspace", 0xABABAB},
    {u"Background", 0x000000},     {u"ButtonFace", 0xF0F0F0},      {u"ButtonHighlight", 0xFFFFFF},
    {u"ButtonShadow", 0xA0A0A0},   {u"ButtonText", 0x000000},      {u"CaptionText", 0x000000},
    {u"GrayText", 0x6D6D6D},       {u"Highlight", 0x0078D7},       {u"HighlightText", 0xFFFFFF},
    {u"InactiveBorder", 0xF4F7FC}, {u"InactiveCaption", 0xBFCDDB}, {u"InactiveCaptionText", 0x000000},
    {u"InfoBackground", 0xFFFFE1}, {u"InfoText", 0x000000},        {u"Menu", 0xF0F0F0},
    {u"MenuText", 0x000000},       {u"Scrollbar", 0xC8C8C8},       {u"ThreeDDarkShadow", 0x696969},
    {u"ThreeDFace", 0xF0F0F0},     {u"ThreeDHighlight", 0xFFFFFF}, {u"ThreeDLightShadow", 0xE3E3E3},
    {u"ThreeDShadow", 0xA0A0A0},   {u"Window", 0xFFFFFF},          {u"WindowFrame", 0x646464},
    {u"WindowText", 0x000000},
};

} // namespace Core
