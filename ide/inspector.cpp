// TObjectInspector: whose properties are shown, the list of components, and the two pages.
#include "ide/inspector.h"

#include <algorithm>

#include "ide/inspectorgrid.h"
#include "vcl/designintf/sentences.h"
#include "vcl/graphics/fontmetrics.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/strings.h"
#include "vcl/rtl/text.h"

namespace ide {

namespace {

std::string LineOf(const vcl::TDesigner& designer, vcl::TPersistent* object) {
  const auto* component = dynamic_cast<vcl::TComponent*>(object);
  if (component) return vcl::Concat(component->Name(), ": ", component->FileClassName());
  const auto* item = dynamic_cast<vcl::TCollectionItem*>(object);
  const std::string index = item ? vcl::Concat("[", vcl::IntToStr(item->Index()), "]") : "";
  return vcl::Concat(designer.Root().Name(), index, ": ", object->ClassName());
}

constexpr int HelpLines = 4;   // The property's name and three lines that say what it is.
constexpr int HelpMargin = 3;  // Around them, in pixels at 96 dots per inch.

/// What the list says of a selection that is not one of its components; empty when it is.
std::string SpecialLine(const vcl::TDesigner& designer,
                        const std::vector<vcl::TPersistent*>& selection) {
  if (selection.empty()) return {};
  if (selection.size() > 1) {
    return vcl::Concat(vcl::IntToStr(static_cast<int>(selection.size())), " selected");
  }
  if (dynamic_cast<vcl::TComponent*>(selection.front())) return {};
  return LineOf(designer, selection.front());
}

}  // namespace

// A page is made with its page control.
TObjectInspector::TObjectInspector(vcl::TComponent* owner)
    : TWinControl(owner),
      FComponents(new vcl::TComboBox(this)),
      FPages(new vcl::TPageControl(this)),
      FProperties(MakePage(FPropertiesPage, "Properties", false)),
      FEvents(MakePage(FEventsPage, "Events", true)),
      FHelpName(MakeHelpLabel()),
      FHelpText(MakeHelpLabel()) {
  using T = TObjectInspector;
  SetBounds(0, 0, 220, 400);
  FComponents->SetStyle(vcl::csDropDownList);
  FComponents->SetDropDownCount(20);
  FComponents->SetAccessibleName("Components");
  FComponents->SetParent(this);
  FComponents->OnClick = vcl::TNotifyEvent(this, &T::ComponentChosen);
  FPages->SetAccessibleName("Pages of the inspector");
  FPages->SetParent(this);
  FPages->SetActivePage(FPropertiesPage);
  FPages->OnChanging = vcl::TTabChangingEvent(this, &T::PageChanging);
  FPages->OnChange = vcl::TNotifyEvent(this, &T::PageChanged);
  FHelpName->Font()->SetStyle({vcl::fsBold});
  FHelpText->SetWordWrap(true);
}

TObjectInspector::~TObjectInspector() { AnnounceEnd(); }

TInspectorGrid* TObjectInspector::MakePage(vcl::TTabSheet*& sheet, const char* caption,
                                           bool events) {
  sheet = new vcl::TTabSheet(this);
  sheet->SetCaption(caption);
  sheet->SetPageControl(FPages);
  auto* grid = new TInspectorGrid(
      this, [events](const vcl::TPropInfo& property) { return property.IsEvent() == events; });
  grid->SetAccessibleName(caption);
  grid->SetAlign(vcl::alClient);
  grid->SetParent(sheet);
  grid->OnSelect = vcl::TNotifyEvent(this, &TObjectInspector::ShowHelp);
  grid->OnSplitter = vcl::TNotifyEvent(this, &TObjectInspector::SplitterMoved);
  return grid;
}

vcl::TLabel* TObjectInspector::MakeHelpLabel() {
  auto* label = new vcl::TLabel(this);
  label->SetAutoSize(false);
  label->SetShowAccelChar(false);
  label->SetParent(this);
  return label;
}

void TObjectInspector::Resize() {
  TWinControl::Resize();
  const int top = FComponents->Height() + ScaledPixels(2);
  FComponents->SetBounds(0, 0, ClientWidth(), FComponents->Height());
  const int help = HelpLines * vcl::FontHeight(*Font()) + 2 * ScaledPixels(HelpMargin);
  // The properties come first where the window is low.
  const int bottom = ClientHeight() - top >= 3 * help ? ClientHeight() - help : ClientHeight();
  FPages->SetBounds(0, top, ClientWidth(), std::max(bottom - top, 0));
  PlaceHelp(bottom + ScaledPixels(HelpMargin), ClientHeight());
}

/// What takes its height from the font has it then.
void TObjectInspector::Dispatch(vcl::TMessage& message) {
  TWinControl::Dispatch(message);
  if (message.Msg == vcl::CM_FONTCHANGED) Resize();
}

void TObjectInspector::PlaceHelp(int top, int bottom) {
  const int margin = ScaledPixels(HelpMargin);
  const int width = std::max(ClientWidth() - 2 * margin, 0);
  const int line = vcl::FontHeight(*Font());
  FHelpName->SetBounds(margin, top, width, line);
  FHelpText->SetBounds(margin, top + line, width, std::max(bottom - top - line, 0));
}

// What is shown.

void TObjectInspector::SetDesigner(vcl::TDesigner* designer) {
  FDesigner = designer;
  SelectionChanged();
}

void TObjectInspector::SelectionChanged() {
  FSelection = FDesigner ? FDesigner->Selection() : std::vector<vcl::TPersistent*>();
  for (vcl::TPersistent* each : FSelection) {
    if (auto* component = dynamic_cast<vcl::TComponent*>(each)) component->FreeNotification(this);
  }
  ShowObjects();
  ListComponents();
}

// The page behind is filled when it comes to the front.
void TObjectInspector::ShowObjects() {
  TInspectorGrid& behind = EventsShown() ? *FProperties : *FEvents;
  behind.SetObjects(nullptr, {});
  ActiveGrid().SetObjects(FDesigner, {FSelection.begin(), FSelection.end()});
}

void TObjectInspector::Refresh() {
  ActiveGrid().Refresh();
  ListComponents();
}

void TObjectInspector::ShowHelp(vcl::TObject* sender) {
  if (sender != &ActiveGrid()) return;
  const int row = ActiveGrid().SelectedRow();
  std::string name, text;
  if (row >= 0) {
    const vcl::TEditedProperty& edited = ActiveGrid().Row(row).Editor->Edited().front();
    name = ActiveGrid().Row(row).Name();
    text = vcl::Sentences().Of(edited.Object->ClassType(), edited.Property->Name);
  }
  FHelpName->SetCaption(name);
  FHelpText->SetCaption(text);
}

bool TObjectInspector::Apply() { return ActiveGrid().Apply(); }

std::string TObjectInspector::ChangeKey() const { return ActiveGrid().ChangeKey(); }

void TObjectInspector::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TWinControl::Notification(component, operation);
  if (operation != vcl::opRemove || Destroying()) return;
  const auto found = std::ranges::find(FSelection, static_cast<vcl::TPersistent*>(component));
  if (found == FSelection.end()) return;
  FSelection.erase(found);
  ShowObjects();
}

// The component list.

void TObjectInspector::ListComponents() {
  FListed.clear();
  vcl::TStringList lines;
  int selected = -1;
  if (FDesigner) {
    vcl::TComponent& root = FDesigner->Root();
    FListed.push_back(&root);
    for (int i = 0; i < root.ComponentCount(); ++i) FListed.push_back(root.Components(i));
    std::erase_if(FListed, [](const vcl::TComponent* each) { return each->Name().empty(); });
    std::ranges::sort(FListed, [](const vcl::TComponent* a, const vcl::TComponent* b) {
      return vcl::CompareText(a->Name(), b->Name()) < 0;
    });
    const std::string special = SpecialLine(*FDesigner, FSelection);
    if (!special.empty()) FListed.insert(FListed.begin(), nullptr);
    for (vcl::TComponent* each : FListed) {
      if (each && FSelection.size() == 1 && FSelection.front() == each) selected = lines.Count();
      lines.Add(each ? LineOf(*FDesigner, each) : special);
    }
    if (!special.empty()) selected = 0;
  }
  if (!lines.Equals(*FComponents->Items())) FComponents->SetItems(&lines);
  if (FComponents->ItemIndex() != selected) FComponents->SetItemIndex(selected);
}

void TObjectInspector::ComponentChosen(vcl::TObject* /*sender*/) {
  const int index = FComponents->ItemIndex();
  if (!FDesigner || index < 0) return;
  vcl::TComponent* chosen = FListed.at(static_cast<std::size_t>(index));
  if (!chosen) return;
  FDesigner->SetSelection({chosen});
}

// The pages.

void TObjectInspector::ShowEvents(bool events) {
  if (events == EventsShown() || !Apply()) return;
  FPages->SetActivePage(events ? FEventsPage : FPropertiesPage);
  ShowObjects();
}

void TObjectInspector::PageChanging(vcl::TObject* /*sender*/, bool& allow) { allow = Apply(); }

void TObjectInspector::PageChanged(vcl::TObject* /*sender*/) { ShowObjects(); }

void TObjectInspector::SplitterMoved(vcl::TObject* sender) {
  TInspectorGrid& other = sender == FProperties ? *FEvents : *FProperties;
  other.SetSplitter(static_cast<TInspectorGrid*>(sender)->Splitter());
}

}  // namespace ide
