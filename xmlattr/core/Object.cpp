#include "xmlattr/core/Object.h"

namespace Core {

Object::~Object() = default;

} // namespace Core
