// xmlattr: typed values for the attributes of an XML document formatter.
#pragma once

#include "xmlattr/Instantiations.h"
#include "xmlattr/attributes/ParseUtil.h"
#include "xmlattr/core/Application.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/core/StringFormatStream.h"
#include "xmlattr/defaults/DefaultAttributes.h"
#include "xmlattr/document/TabStop.h"
#include "xmlattr/drawing/SpotColor.h"
