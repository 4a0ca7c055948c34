// xmlattr: typed values for the attributes of an XML document formatter.
//
// What threads may share: every constant, every colour object and any attribute or value that nobody
// changes. The configuration, the log handler, the registered spot colours and the system colours may
// be read and changed by any thread at any time. An attribute that one thread changes (parseValue,
// copyFrom, setValue, assignment, and printing a BarcodeValueType) belongs to that thread alone
// meanwhile; parsing itself keeps no state between calls.
#pragma once

#include "xmlattr/Instantiations.h"
#include "xmlattr/attributes/ParseUtil.h"
#include "xmlattr/core/Application.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/Log.h"
#include "xmlattr/core/OSInfo.h"
#include "xmlattr/core/StringFormatStream.h"
#include "xmlattr/core/Version.h"
#include "xmlattr/defaults/DefaultAttributes.h"
#include "xmlattr/document/TabStop.h"
#include "xmlattr/drawing/SpotColor.h"
