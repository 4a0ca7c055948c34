// Macros that other people's headers define without a prefix.
#pragma once

// Qt
#define slots
#define signals public
#define emit
#define foreach(variable, container) for (variable : container)
#define forever for (;;)

// X11
#define None 0L
#define Always 2
#define NoValue 0
#define True 1
#define False 0
#define Bool int
#define Status int
#define Success 0
#define Above 0
#define Below 1
#define Complex 0
#define Convex 2
#define Unsorted 0
#define Opposite 4
#define CursorShape 0
#define FontChange 255
#define GrayScale 1
#define KeyPress 2
#define FocusIn 9

// Windows
#define min(a, b) ((a) < (b) ? (a) : (b))
#define max(a, b) ((a) > (b) ? (a) : (b))
#define TRUE 1
#define FALSE 0
#define IN
#define OUT
#define OPTIONAL
#define near
#define far
#define small char
#define interface struct
#define ERROR 0
#define DELETE 0x00010000L
#define ABSOLUTE 1
#define RELATIVE 2
#define TRANSPARENT 1
#define OPAQUE 2
#define TEXT(quote) quote
#define RGB(r, g, b) 0
#define CMYK(c, m, y, k) 0
