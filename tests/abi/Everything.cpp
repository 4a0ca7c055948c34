// Every public declaration, compiled with the debugging information that `check` reads layouts from.
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/Judge.h"
#include "xmlattr/catalogue/legality/StyleAttribute.h"
#include "xmlattr/xmlattr.h"
