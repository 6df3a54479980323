#include "string_library.h"
