#include "ui/help/help_pages.h"

#include <wx/translation.h>

namespace trassix {

namespace {

constexpr const char* kPlan[] = {
    wxTRANSLATE("Choose a track system at the top of the palette on the left. Drag a piece from "
                "the list onto the plan; where its end comes near an open end of other track, it "
                "snaps on and is joined."),
    wxTRANSLATE("# The quick way"),
    wxTRANSLATE("Drop one piece, then double-click pieces on the plan to go on with the same "
                "article, or double-click an article in the palette to put it at the open end of "
                "the selected piece. The new piece is selected, so a whole line grows click by "
                "click."),
    wxTRANSLATE("# Left and right"),
    wxTRANSLATE("While you carry a piece, the wheel or R turns it. A curve carried to an open end "
                "joins with the end that faces it: turn it round for a curve to the other side."),
    wxTRANSLATE("# Closing a loop"),
    wxTRANSLATE("When the last piece of a loop lies where its end meets another open end, both are "
                "joined by themselves. Small dots show joined ends; open ends stay marked."),
    wxTRANSLATE("# Exact values"),
    wxTRANSLATE("The panel on the right shows what is selected. Type a position, a heading or a "
                "height and press Enter; Esc brings the old value back. A length may name its "
                "unit, such as \"12.5 cm\". A piece that is given another place leaves its "
                "neighbours unless their ends still meet; a height lifts all track joined to the "
                "piece. Right-click an empty spot to put a label there, double-click the label to "
                "change its text."),
    wxTRANSLATE("# What to buy"),
    wxTRANSLATE("Below it the pieces on the plan are counted, article by article. Copy or save the "
                "list for a spreadsheet. \"Purchase List...\" takes off what you have at home "
                "already, which you enter once and which is remembered for all layouts, and opens "
                "the shop with the rest."),
    wxTRANSLATE("# Nothing gets lost"),
    wxTRANSLATE("Every step can be taken back with Ctrl+Z and done again with Ctrl+Y. An asterisk "
                "in the window's title tells that there are changes that are not saved."),
};

constexpr const char* kMouseAndKeys[] = {
    wxTRANSLATE("# Looking around"),
    wxTRANSLATE("Wheel|Zoom at the pointer"),
    wxTRANSLATE("+ and -|Zoom at the middle of the plan"),
    wxTRANSLATE("Ctrl+0, Ctrl+1|Show the whole plan, what is selected"),
    wxTRANSLATE("Ctrl+drag|Move the view"),
    wxTRANSLATE("Space+drag|Move the view"),
    wxTRANSLATE("F9, Shift+F9|Fold the palette, or properties and tally, away or back; so does a "
                "double-click on the edge"),
    wxTRANSLATE("Ctrl+F|Find pieces, scenery and labels on the plan"),
    wxTRANSLATE("# Selecting"),
    wxTRANSLATE("Click|Select what is there; click again for what lies below"),
    wxTRANSLATE("Ctrl+click|Add to the selection or take out of it"),
    wxTRANSLATE("Drag on empty plan|Select everything inside the frame"),
    wxTRANSLATE("Alt+double-click|Select all track that is joined; so does the menu of a "
                "right-click, where the desktop keeps Alt for itself"),
    wxTRANSLATE("Ctrl+A|Select all"),
    wxTRANSLATE("Esc|Select nothing; break off what is under way"),
    wxTRANSLATE("# Changing"),
    wxTRANSLATE("Double-click|Add another piece of the same article"),
    wxTRANSLATE("Drag|Move the selection"),
    wxTRANSLATE(
        "Alt+drag, Shift+drag|Turn the selection freely, in steps of 15° while Shift is held"),
    wxTRANSLATE("Ctrl+wheel|Turn it by 15°, with Shift by 5°"),
    wxTRANSLATE("Arrow keys|Move it by 10 mm, with Shift by 1 mm"),
    wxTRANSLATE("Del, Backspace|Delete it"),
    wxTRANSLATE("Ctrl+M, Ctrl+Shift+M|Mirror it left to right, top to bottom"),
    wxTRANSLATE("Ctrl+L|Lay a parallel track beside the selected chain"),
    wxTRANSLATE("Ctrl+X, Ctrl+C, Ctrl+V, Ctrl+D|Cut, copy, paste, duplicate"),
    wxTRANSLATE("Ctrl+Z, Ctrl+Y|Undo, redo"),
    wxTRANSLATE("Right-click|More of what can be done here"),
    wxTRANSLATE("# Carrying something from the palette"),
    wxTRANSLATE("A number|Goes to the search; Enter then places the article, with \"6x\" before it "
                "six of them in a row"),
    wxTRANSLATE("Wheel, R|Turn it by 30°, the wheel with Shift by 15°"),
    wxTRANSLATE("Arrow keys|Move it, with Shift by 1 mm"),
    wxTRANSLATE("Enter|Let it go where it is"),
    wxTRANSLATE("Esc, right-click|Put it back"),
    wxTRANSLATE("# Files"),
    wxTRANSLATE("Ctrl+N, Ctrl+W|New layout, close layout"),
    wxTRANSLATE("Ctrl+O|Open a layout"),
    wxTRANSLATE("Ctrl+S, Ctrl+Shift+S|Save, save under another name"),
    wxTRANSLATE("# Switches"),
    wxTRANSLATE("Ctrl+G|Grid"),
    wxTRANSLATE("Ctrl+Shift+G|Snapping of track ends"),
    wxTRANSLATE("F1|This window"),
    wxTRANSLATE("All commands are in the menus: Alt and the underlined letter opens a menu, Tab "
                "goes on from the list of systems to the search field, the pieces, the plan and "
                "the panel on the right."),
};

constexpr const char* kAutofill[] = {
    wxTRANSLATE("Autofill closes the gap between two open ends with pieces from the catalogue."),
    wxTRANSLATE("# How to use it"),
    wxTRANSLATE("Select the two pieces on either side of the gap: click the one, Ctrl+click the "
                "other. Right-click one of them and choose \"Autofill Gap...\". Choose one of the "
                "offered fills; the plan shows each while it is highlighted."),
    wxTRANSLATE("# What it can fill"),
    wxTRANSLATE(
        "A straight gap is filled with a run of straights, a gap along one arc with equal "
        "curves: a corner, a semicircle or the rest of a circle. A gap between tracks that run "
        "side by side is filled with an S: a curve, straights, and the same curve to the "
        "other side. When nothing fits, move one side of the gap a little, or change the "
        "pieces next to it."),
};

constexpr const char* kLevelsAndBaseboard[] = {
    wxTRANSLATE("# Levels"),
    wxTRANSLATE(
        "A layout can have several decks, each with a name, a height, and a colour for its "
        "track. \"Levels\" in the tool bar lists them. A hidden level is neither drawn nor "
        "can it be changed by mistake. A new piece takes the level of the track it snaps "
        "to, and the highest visible level where it snaps to nothing. The list in the corner of "
        "the plan shows and hides levels, and makes one active, by one click."),
    wxTRANSLATE("Track rides with its level: change the height of a level, and its track is lifted "
                "or lowered with it. Track that leads on to another level climbs or falls as much "
                "more; where that would be too steep you are asked. A level that is deleted hands "
                "what stands on it to another one, or takes it along, as you like."),
    wxTRANSLATE("A level can have an outline of its own: that of the baseboard, that of a shape "
                "you selected before, or one that you draw. Undo brings back track that was "
                "deleted with its level, but not the level itself."),
    wxTRANSLATE("# Grades"),
    wxTRANSLATE("Select the track that is to climb and choose \"Elevation\" in the tool bar: give "
                "it a grade or a height to reach, raise it, ease it or make it level. The window "
                "says what comes of it before you do it. Track that is joined to an open run goes "
                "on climbing until you choose \"End Grade Here\" from its menu."),
    wxTRANSLATE("View > Show Grades puts grades, heights and the room between crossing tracks on "
                "the plan. View > Height Profile shows the way through the selected track from the "
                "side: drag its joints up and down, double-click one to type its height."),
    wxTRANSLATE("# The 3D view"),
    wxTRANSLATE(
        "\"3D View\" in the tool bar, or F7, shows the layout as it will stand in the room, "
        "in a window of its own that follows the plan while you work. Drag to turn it about "
        "what is under the pointer, drag with Shift or the middle button to move it, turn "
        "the wheel to zoom; Home shows all of it, 1 to 4 look from above, the front, the "
        "side and obliquely. A click selects on the plan as well. \"Cut\" takes off what "
        "is above a height, to look into hidden stations; \"Levels\" chooses what is shown."),
    wxTRANSLATE("\"Ride Along\" follows the track from the selected piece: left and right choose "
                "the way at the next turnout, up and down ride forwards and backwards, the space "
                "bar stops, Esc ends the ride. Piers and posts are put up automatically wherever "
                "track or a deck is raised. A filled shape with a height is a hill, one that is "
                "mainly blue is water. The menu writes pictures (PNG) and models (glTF) for other "
                "programs."),
    wxTRANSLATE("# Tunnels and hidden track"),
    wxTRANSLATE(
        "Select a chain of track, or two side by side, and choose \"Tunnel\" in the tool bar "
        "or the context menu: portals stand at both ends, with a hill over the track between "
        "them. The chain may lead through turnouts; track that leaves it on the way gets no "
        "portal, and you are told so first. Portals of old stone, in the context menu, are "
        "too low for overhead wire. Properties say how long the tunnel is and whether its "
        "opening is wide enough for its sharpest curve."),
    wxTRANSLATE("Track in a tunnel is locked. Select any of it, or a portal, and choose \"Remove "
                "Tunnel\": the track stays as it lies."),
    wxTRANSLATE(
        "Track in a tunnel, and whatever lies beneath the outline of a higher level, is "
        "dashed and lighter than the rest. View > Show Hidden Track leaves track in tunnels "
        "out altogether: it cannot be clicked or snapped to then, and shows again when Find "
        "or the tally leads to it."),
    wxTRANSLATE("# Helices"),
    wxTRANSLATE("At the end of each system's track the palette has its helices, of one track or of "
                "two. Drag one onto the plan, or double-click it to choose turns or the height to "
                "climb, the pitch, which is the rise of one turn, and the way round: of what you "
                "enter the last holds, and the rest follows. The window says at once how steep "
                "each track is, bare and as its curve makes trains feel it, and whether they "
                "pass below its turns, with wire and without."),
    wxTRANSLATE("It hangs on the pointer by one of its ends and snaps to open ends, as high as "
                "these; F goes on to its next end. On the plan a click selects it as a whole. "
                "Drag, wheel and height are for all of it. Double-click it to change it: the ends "
                "that are joined stay, as many as can. Its menu deletes it, or turns it into loose "
                "track."),
    wxTRANSLATE("# Baseboard"),
    wxTRANSLATE("Layout > Layout Shape gives the plan its table: a rectangle, an L, a U or a T of "
                "exact measures, or a free outline that you draw corner by corner or take from a "
                "shape selected before. It lies behind the track, never in the way of a click. A "
                "table that is changed keeps its top left corner; the first one is put under what "
                "is on the plan. \"Mirror\" and \"Turn Right\" lay it the other way round. With "
                "Layout > Baseboard Corners its corners are dragged on the plan, with Level "
                "Corners those of the active level's outline."),
    wxTRANSLATE("# Shapes"),
    wxTRANSLATE(
        "\"Polygon\" in the tool bar draws any outline corner by corner: an access hatch, "
        "a lake, a road. Click the first corner again, or double-click the last one, to close "
        "it; an edge that would cross the others is shown in red and not taken. \"Rectangle\" "
        "places one of an exact size in the middle of the "
        "view, selected, so that it can be moved to its place. Double-click a shape to give "
        "it a label, colour, opacity, height and level, or to make it the baseboard."),
    wxTRANSLATE("A selected shape has handles: drag a corner, or pull a new one out of the middle "
                "of an edge. Click a corner and press Del to remove it; right-click it to place it "
                "by numbers."),
    wxTRANSLATE("Lengths can be typed in any unit: 120, 12 cm or 4.75 in."),
    wxTRANSLATE("# Measures"),
    wxTRANSLATE("Layout > Units of Measure changes how lengths are shown. The plan itself stays "
                "exact to a fraction of a millimetre, whichever unit you choose."),
};

constexpr const char* kFiles[] = {
    wxTRANSLATE("Layouts are kept in the folder \"Trassix\" among your documents. Save writes the "
                "open layout there under the name you gave it; until the new file is complete, the "
                "old one stays as it was."),
    wxTRANSLATE(
        "File > Recent Plans has those that were open last. A layout file from anywhere opens "
        "with a double-click or when it is dropped on the window, and is then saved where it "
        "lies."),
    wxTRANSLATE("# What is not saved yet"),
    wxTRANSLATE("Changes are copied to a safe place while you work. When the program or the "
                "computer stops before you save them, the next start offers them: open them, keep "
                "them for later, or throw them away."),
    wxTRANSLATE("# Older versions"),
    wxTRANSLATE(
        "File > Older Versions lists what a layout held before it was saved, replaced or "
        "deleted, and opens it as a new layout. Up to 20 versions of each are kept, those of "
        "a deleted one for 30 days."),
    wxTRANSLATE("# From and to other places"),
    wxTRANSLATE("File > Import Layout copies a layout from any folder to yours, for example one "
                "that you downloaded. File > Export Layout copies one of yours to a folder of your "
                "choice, to pass it on or to keep it safe."),
    wxTRANSLATE("# Library blocks"),
    wxTRANSLATE("Track that you want to use again, such as a station throat, can be kept in the "
                "library: select it and choose File > Save as Library Block."),
    wxTRANSLATE("# Deleting"),
    wxTRANSLATE("File > Open Layout has a button for it. A layout that is open while its file is "
                "deleted stays open, and Save asks for a name again."),

    wxTRANSLATE("# On paper"),
    wxTRANSLATE(
        "File > Print shows the plan with the sheets over it: all of it on one page, to a "
        "scale, or at its true size over as many sheets as it takes. Click a sheet, or take "
        "its tick away in the list, to leave it out. To print a single one again, leave all "
        "out and tick that one."),
    wxTRANSLATE(
        "Sheets of true size are cut along the dashed lines and laid cross on cross. Joints "
        "carry the articles that meet there, and their height."),
    wxTRANSLATE(
        "Many printers are a little off. Measure the 100 mm ruler that stands on each page, "
        "in both directions, and enter what you measured: from then on that printer prints "
        "true."),
    wxTRANSLATE("# As a picture"),
    wxTRANSLATE("File > Export Picture writes the plan as PNG with as many pixels as you like, as "
                "SVG to the millimetre with a hidden group of lines for cutters, or as PDF: in "
                "tiles, on one sheet, or in strips for the rolls of a print shop."),
};

constexpr const char* kLayoutWizard[] = {
    wxTRANSLATE("Layout > Layout Wizard makes a closed line that follows the edges of your table, "
                "from pieces of one track system. What it places is ordinary track, to be changed "
                "like any other."),
    wxTRANSLATE("# What it asks"),
    wxTRANSLATE("Table|The baseboard of the plan, a usual board, a shape by its measures, or any "
                "outline of right angles with up to eight corners: drag them in the drawing"),
    wxTRANSLATE("Free edge|How much stays free between the bed of the track and the table's edge"),
    wxTRANSLATE("Tracks|One, or two side by side; the difference of their radii is their distance "
                "all the way round"),
    wxTRANSLATE("Corner radius|Of the corners, inner ones included; of two tracks the inner one's"),
    wxTRANSLATE("Station|The side it is on, how many sidings it has beside the main line, and how "
                "long a train may be that stands there without touching one on the next track"),
    wxTRANSLATE("Bridge|An arch or truss bridge in a side, as level track"),
    wxTRANSLATE("Prefer|What the first layout is best at; the others are best at something else"),
    wxTRANSLATE("Only track at home|Takes no more pieces than the purchase list has as owned"),
    wxTRANSLATE("# What it shows"),
    wxTRANSLATE("Up to four layouts come side by side with their figures, while the search goes "
                "on. \"More\" searches for further ones, which are shorter. Choose one with the "
                "mouse, the arrow keys or its number, then press Enter."),
    wxTRANSLATE("On a rectangle the main line closes exactly. A siding may leave a gap of up to "
                "1.0 mm, or be turned by up to 1.0 degree, which real track takes up: the figures "
                "say how much, and it is in the one joint where it is least."),
    wxTRANSLATE("# When there is none"),
    wxTRANSLATE("It says what is in the way and what would help: the nearest table, a radius that "
                "fits, or how long the station can be. Systems without pieces for stations or "
                "bridges get the loop without them."),
    wxTRANSLATE("# On the plan"),
    wxTRANSLATE(
        "The layout is added to the plan or takes the place of its track, as you like, and "
        "the table becomes the baseboard. One undo takes the track back; the baseboard "
        "stays. Opened again on a plan that it made, the wizard has your answers filled in; "
        "if the plan was changed since, only its table."),
};

constexpr const char* kBridgeWizard[] = {
    wxTRANSLATE(
        "Select the track that is to lead over other track, a road or water, where it crosses it, "
        "and choose Layout > Bridge Wizard: it lifts the track with ramps on both sides, puts "
        "bridge pieces in place of straights, and says which piers it takes. A loop stays closed. "
        "With a piece that has an open end it goes straight on from there, up, over what lies "
        "ahead and down again; a stretch over a valley gets its bridge as it lies."),
    wxTRANSLATE(
        "The window shows at every entry what would come of it: from the side with the height of "
        "each pier, where it crosses with the clearance in numbers, and from above. Clearance and "
        "deck height follow one another, as do grade limit and ramp length: what you type last "
        "holds. Below stand the grades, bare and with what curves add, and the pieces to add with "
        "how many of them are at home. \"Alternatives\" are other bridges for the same place."),
    wxTRANSLATE(
        "What cannot be built is refused with the reason and what would help, such as a steeper "
        "limit or a longer way. Where no span is long enough, a frame across the lower track "
        "carries the joint. The bridge is one step for Undo, and the tally lists the piers of "
        "the whole plan under \"Supports\"."),
};

constexpr const char* kLayoutPictures[] = {wxTRANSLATE("A table"),
                                           wxTRANSLATE("Two tracks round it, and a station"),
                                           wxTRANSLATE("One track with a bridge")};

constexpr HelpPage kPages[] = {
    {HelpTopic::Plan, wxTRANSLATE("Planning Track"), kPlan},
    {HelpTopic::MouseAndKeys, wxTRANSLATE("Mouse and Keys"), kMouseAndKeys},
    {HelpTopic::Autofill, wxTRANSLATE("Autofill"), kAutofill},
    {HelpTopic::LevelsAndBaseboard, wxTRANSLATE("Levels and Baseboard"), kLevelsAndBaseboard},
    {HelpTopic::Files, wxTRANSLATE("Files and Library"), kFiles},
    {HelpTopic::LayoutWizard, wxTRANSLATE("Layout Wizard"), kLayoutWizard, kLayoutPictures},
    {HelpTopic::BridgeWizard, wxTRANSLATE("Bridge Wizard"), kBridgeWizard},
};

} // namespace

std::span<const HelpPage> helpPages() {
  return kPages;
}

} // namespace trassix
