/// An object that the framework can hold and run work for.
#pragma once

#include "mindroid/object.h"

namespace mindroid {

class Handler : public Object {};

} // namespace mindroid
