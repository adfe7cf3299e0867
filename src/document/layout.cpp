#include "document/layout.h"
