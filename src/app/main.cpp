#include "app/trassix_app.h"

wxIMPLEMENT_APP(trassix::TrassixApp);
