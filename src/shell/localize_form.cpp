#include "localize_form.h"
