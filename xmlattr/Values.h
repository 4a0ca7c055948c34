// Every value type, for those who go through the whole list.
#pragma once

#include "xmlattr/attributes/PlainValues.h"
#include "xmlattr/keywords/BarcodeKeywords.h"
#include "xmlattr/keywords/ChartKeywords.h"
#include "xmlattr/keywords/DataKeywords.h"
#include "xmlattr/keywords/FontKeywords.h"
#include "xmlattr/keywords/FormKeywords.h"
#include "xmlattr/keywords/GraphicsKeywords.h"
#include "xmlattr/keywords/LayoutKeywords.h"
#include "xmlattr/keywords/OddKeywords.h"
#include "xmlattr/keywords/OutputKeywords.h"
#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/LengthOrPercent.h"
#include "xmlattr/measures/Rectangle.h"
#include "xmlattr/measures/SLength.h"
#include "xmlattr/measures/SLengthOrPercent.h"
