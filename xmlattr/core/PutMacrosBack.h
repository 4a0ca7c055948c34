// Ends what SetMacrosAside.h began.

#pragma pop_macro("Always")
#pragma pop_macro("False")
#pragma pop_macro("NoValue")
#pragma pop_macro("None")
#pragma pop_macro("True")
