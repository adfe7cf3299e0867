#include "ui/palette/palette_panel.h"

#include "app/desktop/path_text.h"
#include "app/desktop/standard_folders.h"
#include "app/desktop/user_paths.h"
#include "app/services/program_memory.h"
#include "editing/canvas/carried.h"
#include "editing/helix/helix_plan.h"
#include "editing/selection/plan_systems.h"
#include "host/questions.h"
#include "panels/block_library.h"
#include "texts/texts.h"
#include "ui/palette/catalog_list.h"
#include "ui/palette/palette_drawings.h"
#include "ui/palette/palette_rows.h"
#include "ui/widgets/file_boxes.h"
#include "ui/widgets/utf8.h"

#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/srchctrl.h>
#include <wx/tglbtn.h>

#include <algorithm>
#include <system_error>

namespace trassix {

namespace {

const std::string kTopic = "palette"; ///< of what the program remembers

} // namespace

PalettePanel::PalettePanel(wxWindow* parent, Workspace& workspace, Actions actions)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, "palette"),
      PlanObserver(workspace), workspace_(workspace), actions_(std::move(actions)) {
  Bind(wxEVT_PAINT, &PalettePanel::onFirstPaint, this);
  Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
    renewOffer();
    event.Skip();
  });
}

PalettePanel::~PalettePanel() = default;

void PalettePanel::onFirstPaint(wxPaintEvent& event) {
  event.Skip();
  Unbind(wxEVT_PAINT, &PalettePanel::onFirstPaint, this);
  CallAfter(&PalettePanel::build);
}

void PalettePanel::build() {
  if (search_)
    return;
  wxArrayString systems;
  for (const TrackSystem system : systems_)
    systems.Add(fromUtf8(systemName(system)));
  choice_ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, systems, 0,
                         wxDefaultValidator, "systems");
  choice_->SetToolTip(_("Track system"));
  search_ = new wxSearchCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                             wxTE_PROCESS_ENTER, wxDefaultValidator, "search");
  search_->SetDescriptiveText(_("Article, name or number"));
  search_->SetToolTip(
      _("For example \"24130\", \"R2 30\" or \"turnout left\"; with \"6x24130\", Enter "
        "places six"));
  search_->ShowCancelButton(true);
  auto* tabRow = new wxBoxSizer(wxHORIZONTAL);
  const wxString titles[] = {_("Track"), _("Scenery"), _("Library")};
  for (const Tab tab : {kTrackTab, kSceneryTab, kLibraryTab}) {
    auto* button = new wxToggleButton(this, wxID_ANY, titles[tab], wxDefaultPosition, wxDefaultSize,
                                      wxBU_EXACTFIT);
    button->SetMinSize({1, -1});
    button->Bind(wxEVT_TOGGLEBUTTON, [this, tab](wxCommandEvent&) { showTab(tab); });
    tabRow->Add(button, wxSizerFlags(1).Expand());
    tabs_.at(tab) = button;
  }
  pages_ = new wxPanel(this);
  pages_->SetSizer(new wxBoxSizer(wxVERTICAL));
  pages_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (!flipOffered(event))
      event.Skip();
  });

  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(choice_, wxSizerFlags().Expand().Border(wxALL, FromDIP(4)));
  sizer->Add(search_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(4)));
  sizer->Add(tabRow, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(4)));
  sizer->Add(pages_, wxSizerFlags(1).Expand());
  SetSizer(sizer);

  choice_->Bind(wxEVT_CHOICE, [this](wxCommandEvent& event) {
    emptySearch();
    showSystem(systems_[static_cast<std::size_t>(event.GetSelection())]);
    // Not worth a word when it fails.
    ProgramMemory(StandardFolders::memoryFile()).remember(kTopic, [this](auto& kept) {
      kept["system"] = systemName(system());
    });
  });
  search_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { searchFor(search_->GetValue()); });
  search_->Bind(wxEVT_SEARCHCTRL_CANCEL_BTN, [this](wxCommandEvent&) { search_->Clear(); });
  search_->Bind(wxEVT_CHAR_HOOK, &PalettePanel::onSearchKey, this);
  search_->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
    event.Skip();
    // Later: a click that brings the focus sets the cursor after that.
    if (!std::exchange(typedElsewhere_, false)) {
      before_ = nullptr;
      CallAfter([this] { search_->SelectAll(); });
    }
  });
  markSystem();
  showTab(kTrackTab);
  Layout();
}

CatalogList* PalettePanel::makeList(Tab tab) {
  const auto typed = [this](const wxString& text) {
    before_ = nullptr;
    typeInSearch(text, true);
  };
  switch (tab) {
  case kTrackTab:
    return new CatalogList(pages_, "pieces",
                           {[this](std::size_t row) {
                              if (helices_[row])
                                return actions_.drag(usualHelix(*helices_[row]));
                              const std::string article = pieces_[row]->article;
                              actions_.drag(CarriedPiece{article, model_.count()});
                              model_.noteUse(article);
                              CallAfter([this] { fillTrack(); });
                            },
                            [this](std::size_t row) { usePiece(row); },
                            {},
                            {},
                            typed});
  case kSceneryTab:
    return new CatalogList(
        pages_, "scenery",
        {[this](std::size_t row) {
           actions_.drag(CarriedScenery{std::string(scenery_[row]->key)});
         },
         [this](std::size_t row) { actions_.use(CarriedScenery{std::string(scenery_[row]->key)}); },
         {},
         {},
         typed});
  case kLibraryTab:
    break;
  }
  return new CatalogList(pages_, "library",
                         {[this](std::size_t row) {
                            if (const LibraryEntry& entry = *blocks_[row]; !isEmpty(*entry.block))
                              actions_.drag(entry.block);
                          },
                          [this](std::size_t row) { loadEntry(*blocks_[row]); },
                          [this](std::size_t row) { showEntryMenu(*blocks_[row]); },
                          [this](std::size_t row) { deleteEntry(*blocks_[row]); }, typed});
}

CatalogList& PalettePanel::listOf(Tab tab) {
  CatalogList*& list = lists_.at(tab);
  if (!list) {
    list = makeList(tab);
    pages_->GetSizer()->Add(list, wxSizerFlags(1).Expand());
    fill(tab);
  }
  return *list;
}

void PalettePanel::fill(Tab tab) {
  if (!lists_.at(tab))
    return;
  switch (tab) {
  case kTrackTab:
    return fillTrack();
  case kSceneryTab:
    return fillScenery();
  case kLibraryTab:
    return fillLibrary();
  }
}

void PalettePanel::populate() {
  systems_ = paletteSystems();
  const auto kept = ProgramMemory(StandardFolders::memoryFile()).recall(kTopic);
  const auto name = kept ? valueIn<std::string>(*kept, "system") : std::nullopt;
  const auto known = std::ranges::find_if(
      systems_, [&name](TrackSystem system) { return name && systemName(system) == *name; });
  showSystem(known == systems_.end() ? systems_.front() : *known);
}

void PalettePanel::planReplaced() {
  emptySearch();
  if (const std::optional<TrackSystem> system = chiefSystem(workspace_.layout()))
    showSystem(*system);
}

void PalettePanel::showSystem(TrackSystem system) {
  if (std::find(systems_.begin(), systems_.end(), system) == systems_.end())
    return;
  model_.setSystem(system);
  markSystem();
  fill(kTrackTab);
  fill(kSceneryTab);
  reloadLibrary();
}

void PalettePanel::markSystem() {
  const auto shown = std::find(systems_.begin(), systems_.end(), system());
  if (choice_)
    choice_->SetSelection(static_cast<int>(shown - systems_.begin()));
}

void PalettePanel::showTab(Tab tab) {
  shownTab_ = tab;
  listOf(tab);
  for (const Tab other : {kTrackTab, kSceneryTab, kLibraryTab}) {
    tabs_.at(other)->SetValue(other == tab);
    if (CatalogList* list = lists_.at(other))
      list->Show(other == tab);
  }
  pages_->Layout();
}

void PalettePanel::unitsChanged() {
  // To fill the lists anew is to lose their place.
  if (workspace_.units() == units_)
    return;
  units_ = workspace_.units();
  fill(kTrackTab);
  fill(kSceneryTab);
}

std::filesystem::path PalettePanel::libraryFolder() const {
  return UserPaths::libraryFolder(systemName(system()));
}

void PalettePanel::reloadLibrary() {
  blocks_.clear();
  library_ = libraryBlocks(libraryFolder());
  fill(kLibraryTab);
}

void PalettePanel::searchFor(const wxString& text) {
  model_.setSearch(toUtf8(text));
  for (const Tab tab : {kTrackTab, kSceneryTab, kLibraryTab})
    fill(tab);
}

void PalettePanel::emptySearch() {
  if (search_ && !search_->IsEmpty())
    search_->Clear();
}

void PalettePanel::typeInSearch(const wxString& text, bool behind) {
  typedElsewhere_ = true;
  search_->SetFocus();
  search_->SetValue(behind ? search_->GetValue() + text : text);
  search_->SetInsertionPointEnd();
}

bool PalettePanel::takeDigit(const wxKeyEvent& typed) {
  const wxChar digit = typed.GetUnicodeKey();
  if (digit < '0' || digit > '9' || typed.HasModifiers())
    return false;
  EditorSwitches switches = workspace_.switches();
  if (!std::exchange(switches.palette, true))
    workspace_.setSwitches(switches);
  build(); // it may have been folded away from the start
  showTab(kTrackTab);
  before_ = FindFocus();
  typeInSearch(digit, false);
  return true;
}

void PalettePanel::renewOffer() {
  std::optional<Offer> offer;
  wxWindow* focus = FindFocus();
  if (const CatalogList* list = lists_.at(shownTab_);
      list && focus && (search_->IsDescendant(focus) || list == focus)) {
    const int row = list->GetSelection();
    offer = row == wxNOT_FOUND ? Offer{} : offerOfRow(static_cast<std::size_t>(row));
    offer->typing = list != focus;
    offer->flips = flipsByF();
  }
  if (offer == offered_)
    return;
  offered_ = offer;
  actions_.offer(offered_);
}

Offer PalettePanel::offerOfRow(std::size_t row) const {
  Offer offer;
  switch (shownTab_) {
  case kTrackTab:
    if (helices_[row]) {
      offer.asks = true;
      offer.name = tr("Helix %1%", {helices_[row]->radii});
      break;
    }
    offer.article = pieces_[row]->article;
    offer.name =
        model_.count() > 1 ? tr("%1% \u00d7 %2%", {model_.count(), offer.article}) : offer.article;
    break;
  case kSceneryTab:
    offer.name = scenery_[row]->name;
    break;
  case kLibraryTab:
    offer.name = blocks_[row]->name;
    break;
  }
  return offer;
}

bool PalettePanel::flipsByF() const {
  const wxString text = search_->GetValue();
  return !search_->HasFocus() ||
         (!text.empty() && text.find_first_not_of("0123456789xX ") == wxString::npos);
}

bool PalettePanel::flipOffered(const wxKeyEvent& event) {
  return event.GetKeyCode() == 'F' && !event.ControlDown() && !event.AltDown() && flipsByF() &&
         actions_.flip(event.ShiftDown() ? -1 : 1);
}

void PalettePanel::onSearchKey(wxKeyEvent& event) {
  if (flipOffered(event))
    return;
  switch (event.GetKeyCode()) {
  case WXK_UP:
  case WXK_NUMPAD_UP:
    return listOf(shownTab_).moveSelection(-1);
  case WXK_DOWN:
  case WXK_NUMPAD_DOWN:
    return listOf(shownTab_).moveSelection(1);
  case WXK_RETURN:
  case WXK_NUMPAD_ENTER:
    listOf(shownTab_).activateSelected();
    return search_->SelectAll();
  case WXK_ESCAPE:
    search_->Clear();
    return before_ ? before_->SetFocus() : listOf(shownTab_).SetFocus();
  default:
    event.Skip();
  }
}

void PalettePanel::fillTrack() {
  const std::int32_t units = workspace_.units();
  std::vector<CatalogRow> rows;
  pieces_.clear();
  for (const PaletteGroup& group : model_.groups()) {
    rows.push_back(headingRow(headingOf(group, units)));
    pieces_.push_back(nullptr);
    const double scale = scaleOfGroup(group.pieces, CatalogList::kPictureWidth);
    for (const PieceDef* piece : group.pieces) {
      rows.push_back(rowOf(*piece, scale, units));
      pieces_.push_back(piece);
    }
  }
  helices_.assign(rows.size(), nullptr);
  if (!model_.helices().empty()) {
    rows.push_back(headingRow(_("Helix")));
    helices_.push_back(nullptr);
  }
  double widest = 1;
  for (const HelixKit* kit : helixSizes(system()))
    widest = std::max(widest, 2 * kit->outerSize);
  for (const HelixKit* kit : model_.helices()) {
    rows.push_back(rowOf(*kit, widest, units));
    helices_.push_back(kit);
  }
  pieces_.resize(rows.size());
  lists_[kTrackTab]->setRows(std::move(rows), _("No track of this system\nfits the search."));
}

void PalettePanel::fillScenery() {
  const TrackSystem shown = model_.system();
  std::vector<CatalogRow> rows;
  scenery_.clear();
  for (const SceneryGroup& group : model_.scenery()) {
    rows.push_back(headingRow(wxGetTranslation(fromUtf8(categoryName(group.category)))));
    scenery_.push_back(nullptr);
    double widest = 1;
    for (const SceneryDef* item : group.items)
      widest = std::max({widest, item->footprint(shown).width, item->footprint(shown).depth});
    for (const SceneryDef* item : group.items) {
      rows.push_back(rowOf(*item, shown, widest, workspace_.units()));
      scenery_.push_back(item);
    }
  }
  lists_[kSceneryTab]->setRows(std::move(rows), _("No scenery of this gauge\nfits the search."));
}

void PalettePanel::fillLibrary() {
  const wxString wanted = search_->GetValue().Lower();
  std::vector<CatalogRow> rows;
  blocks_.clear();
  for (const LibraryEntry& entry : library_) {
    const wxString name = fromUtf8(entry.name);
    if (!name.Lower().Contains(wanted))
      continue;
    const wxString content = !entry.problem.empty()
                                 ? _("Cannot be read")
                                 : wxString::Format(wxPLURAL("%zu piece", "%zu pieces",
                                                             static_cast<unsigned>(entry.pieces)),
                                                    entry.pieces);
    rows.push_back({false, false, name, content,
                    entry.problem.empty() ? name : fromUtf8(entry.problem),
                    [&entry](Surface& surface, const PictureRoom& room) {
                      drawBlock(surface, room, *entry.block);
                    },
                    0});
    blocks_.push_back(&entry);
  }
  lists_[kLibraryTab]->setRows(
      std::move(rows),
      library_.empty() ? _("No blocks of this system yet.\n\nSelect track on the plan and choose\n"
                           "File > Save as Library Block.")
                       : _("No block fits the search."));
}

void PalettePanel::usePiece(std::size_t row) {
  if (const HelixKit* kit = helices_[row])
    return CallAfter([this, kit] {
      if (const auto wish = workspace_.questions().askHelix(workspace_, usualHelix(*kit)))
        actions_.use(*wish);
    });
  noteUse(*pieces_[row]);
  actions_.use(CarriedPiece{pieces_[row]->article, model_.count()});
}

void PalettePanel::noteUse(const PieceDef& piece) {
  // Later: the list is still at work on the click or key that used the piece.
  CallAfter([this, &piece] {
    const int above = lists_[kTrackTab]->rowsAboveSelection();
    model_.noteUse(piece.article);
    fillTrack();
    const auto last = std::find(pieces_.rbegin(), pieces_.rend(), &piece);
    if (last != pieces_.rend())
      lists_[kTrackTab]->select(static_cast<std::size_t>(pieces_.rend() - last - 1), above);
  });
}

void PalettePanel::loadEntry(const LibraryEntry& entry) {
  FileResult opened;
  SharedBlock block = openBlock(entry.file, opened);
  if (opened.failed()) {
    showFailure(this, _("Load Block Failed"), fromUtf8(opened.message), opened.reason);
    return;
  }
  showNotices(this, _("Load Block"), opened.notices);
  if (!isEmpty(*block))
    actions_.use(std::move(block));
}

void PalettePanel::showEntryMenu(const LibraryEntry& entry) {
  wxMenu menu;
  menu.Append(wxID_DELETE, _("Delete...\tDel"));
  if (lists_[kLibraryTab]->GetPopupMenuSelectionFromUser(menu) == wxID_DELETE)
    deleteEntry(entry);
}

void PalettePanel::deleteEntry(const LibraryEntry& entry) {
  const wxString question = wxString::Format(
      _("Delete library block \"%s\"?\n\nThis cannot be undone."), fromUtf8(entry.name));
  if (wxMessageBox(question, _("Delete Library Block"), wxYES_NO | wxNO_DEFAULT | wxICON_WARNING,
                   this) != wxYES)
    return;
  const std::filesystem::path file = entry.file;
  std::error_code error;
  if (!std::filesystem::remove(file, error))
    showFailure(this, _("Delete Failed"), _("Could not delete:\n") + toText(file), error);
  reloadLibrary();
}

} // namespace trassix
