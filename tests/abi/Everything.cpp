// Every public declaration, compiled with the debugging information that `check` reads layouts from.
#include "xmlattr/catalogue/Catalogue.h"
#include "xmlattr/xmlattr.h"
