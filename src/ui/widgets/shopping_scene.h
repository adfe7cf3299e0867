#pragma once

#include <wx/gdicmn.h>

class wxGraphicsContext;

namespace trassix {

/// A goods train that brings parcels past a row of shops, painted over the whole of `size`.
void paintShoppingScene(wxGraphicsContext& gc, const wxSize& size, bool night);

} // namespace trassix
