// The macros of others whose names are enumerators here, set aside until PutMacrosBack.h: X11 defines
// None, Always and NoValue, and True and False besides. A header that has such an enumerator stands
// between the two, so that programs may include both libraries in either order. No include guard:
// headers nest.

#pragma push_macro("Always")
#pragma push_macro("False")
#pragma push_macro("NoValue")
#pragma push_macro("None")
#pragma push_macro("True")
#undef Always
#undef False
#undef NoValue
#undef None
#undef True
