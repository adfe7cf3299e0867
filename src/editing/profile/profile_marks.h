// What stands along the way of a height profile, as it is drawn.
#pragma once

#include "editing/canvas/surface.h"
#include "editing/profile/label_room.h"
#include "editing/profile/profile_content.h"
#include "editing/profile/profile_scale.h"

#include <string>
#include <string_view>
#include <vector>

namespace trassix {

struct ProfilePicture;

/// Tunnels, bridges and helices, under the track.
void paintRanges(Surface& surface, const ProfilePicture& picture);
/// Turnouts and crossings, in a row below the plot.
void paintMarks(Surface& surface, const ProfilePicture& picture);
/// Other track, cut through, and the room between the two.
void paintCrossings(Surface& surface, const ProfilePicture& picture);
void paintClearances(LabelRoom& labels, const ProfilePicture& picture);

/// Where a turnout's or crossing's mark stands.
inline constexpr double kMarkRadiusPx = 8;
Point markPlace(const ProfileScale& plot, const ProfileMark& mark);

/// "2.5 %"; "level" for what is.
std::string slopeText(double slope);

/// The text in lines that are at most so many px wide.
std::vector<std::string> wrapped(Surface& surface, std::string_view text, const TextStyle& style,
                                 double width);

} // namespace trassix
