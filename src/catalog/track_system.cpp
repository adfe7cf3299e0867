#include "catalog/track_system.h"
