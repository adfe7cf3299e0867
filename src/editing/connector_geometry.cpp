#include "editing/connector_geometry.h"
