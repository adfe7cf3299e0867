#pragma once

#include "panels/elevation_form.h"
#include "ui/widgets/picture_panel.h"

namespace trassix {

/// The heights along the way in a form, as they are and, in the colours of grades, as they would
/// be. The highest and the lowest place fill the picture, whatever the way's length.
class ElevationProfile : public PicturePanel {
 public:
  /// The form must outlive the picture.
  ElevationProfile(wxWindow* parent, const wxSize& size, const ElevationForm& form,
                   std::int32_t units);

 private:
  void paint(wxGraphicsContext& context, const wxSize& size) const;

  const ElevationForm& form_;
  std::int32_t units_;
};

} // namespace trassix
