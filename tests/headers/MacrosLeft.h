// The macros of Macros.h that the library's headers set aside; they are back at the end.
static_assert(None == 0 && Always == 2 && NoValue == 0 && True == 1 && False == 0);
