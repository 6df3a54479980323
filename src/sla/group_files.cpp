#include "group_files.h"
