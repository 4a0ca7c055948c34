// Every value type, for those who go through the whole list.
#pragma once

#include "xmlattr/attributes/PlainValues.h"
#include "xmlattr/measures/Length.h"
#include "xmlattr/measures/Rectangle.h"
#include "xmlattr/measures/SLength.h"
