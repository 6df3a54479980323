#include "product_art.h"
