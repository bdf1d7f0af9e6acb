// TQELFormSaver: which forms and controls it keeps, storing them, and restoring them.
#include "qel/services/Qeltformsaver.h"

#include <algorithm>
#include <iterator>

#include "vcl/forms/application.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

/// One of a control's bounds: the end of its value's name, and how it is read and set.
struct TQELFormSaver::TPart {
  const char* Suffix;
  int (vcl::TControl::*Get)() const;
  void (vcl::TControl::*Set)(int);
  int TNormalBounds::*Saved;
};

TQELFormSaver::TParts TQELFormSaver::SizeParts = {
    {"_Width", &vcl::TControl::Width, &vcl::TControl::SetWidth, &TNormalBounds::Width},
    {"_Height", &vcl::TControl::Height, &vcl::TControl::SetHeight, &TNormalBounds::Height}};
TQELFormSaver::TParts TQELFormSaver::LocationParts = {
    {"_Top", &vcl::TControl::Top, &vcl::TControl::SetTop, &TNormalBounds::Top},
    {"_Left", &vcl::TControl::Left, &vcl::TControl::SetLeft, &TNormalBounds::Left}};

/// One control being stored or restored. Any handler on the way may free the control, or the saver.
class TQELFormSaver::TRound {
 public:
  TRound(TQELFormSaver* saver, vcl::TControl* control)
      : FSaver(saver), FSaverWatch(saver), FControlWatch(control) {}
  bool GoesOn() const {
    return !FSaverWatch.Gone() && !FControlWatch.Gone() && !FSaver->FUnreadable;
  }
  bool Wants(bool TQELFormSaver::*part) const { return GoesOn() && FSaver->*part; }

 private:
  const TQELFormSaver* FSaver;
  vcl::TWatch FSaverWatch, FControlWatch;
};

namespace {

constexpr const char* StateSuffix = "_WindowState";
constexpr const char* VisibleSuffix = "_Visible";
// What the states are stored as, by TWindowState: numbers of the saver's own.
constexpr int StateCodes[] = {2, 1, 3};

/// Moves the form into the work area of the monitor that it is nearest to when no piece of its
/// title bar that is as wide as high lies there.
void MoveOntoScreen(vcl::TForm* form) {
  const vcl::TRect bounds = form->BoundsRect();
  const vcl::TRect area = vcl::Screen()->WorkAreaRect(bounds);
  const int caption = ::GetSystemMetrics(SM_CYCAPTION);
  const vcl::TRect title = vcl::Bounds(bounds.Left, bounds.Top, bounds.Width(), caption);
  const vcl::TSize seen = vcl::Intersection(title, area).Size();
  if (seen.cx >= caption && seen.cy >= caption) return;
  // The top left corner counts most: there the user finds what a larger form does not show.
  form->SetBounds(std::max(area.Left, std::min(bounds.Left, area.Right - bounds.Width())),
                  std::max(area.Top, std::min(bounds.Top, area.Bottom - bounds.Height())),
                  bounds.Width(), bounds.Height());
}

}  // namespace

const vcl::TClass& TQELFormSaver::Class() {
  using T = TQELFormSaver;
  using namespace vcl;
  // StoreControls declares no default, although the constructor sets it: form files always say it.
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELFormSaver", "qel/services/Qeltformsaver.h",
      {
          ReadOnly<&T::FormStore>("FormStore"),
          Property<&T::StoreSize, &T::SetStoreSize>("StoreSize").Default(true),
          Property<&T::StoreLocation, &T::SetStoreLocation>("StoreLocation").Default(true),
          Property<&T::StoreState, &T::SetStoreState>("StoreState").Default(true),
          Property<&T::StoreVisible, &T::SetStoreVisible>("StoreVisible").Default(true),
          Property<&T::StoreControls, &T::SetStoreControls>("StoreControls"),
          Event<&T::OnStore>("OnStore"),
          Event<&T::OnStoreControl>("OnStoreControl")
              .Type("TQELOnStoreControl", "vcl::TObject* sender, bool& store"),
          Event<&T::OnRestore>("OnRestore"),
          Property<&T::KeepOnScreen, &T::SetKeepOnScreen>("KeepOnScreen").Default(false),
          Property<&T::QualifyNames, &T::SetQualifyNames>("QualifyNames").Default(false),
      });
  return info;
}

// The form.

TQELFormSaver::TQELFormSaver(vcl::TComponent* owner)
    : TQELComponent(owner),
      FFormStore(std::make_unique<TQELDataStore>()),
      FForm(dynamic_cast<vcl::TForm*>(owner)) {
  if (FForm) TakeForm();
}

TQELFormSaver::~TQELFormSaver() {
  AnnounceEnd();
  if (FForm) LeaveForm();
}

// The form's events are read before the components on it, so these are those of its form file. A
// saver that comes later keeps the handlers of this one, and may call them when it has gone.
void TQELFormSaver::TakeForm() {
  FForm->FreeNotification(this);
  if (Designing()) return;
  FPreviousOnShow = FForm->OnShow;
  FPreviousOnClose = FForm->OnClose;
  const vcl::TWatch watch(this);
  FForm->OnShow = [this, watch](vcl::TObject* sender) {
    if (!watch.Gone()) MyRestore(sender);
  };
  FForm->OnClose = [this, watch](vcl::TObject* sender, vcl::TCloseAction& action) {
    if (!watch.Gone()) MyStore(sender, action);
  };
}

void TQELFormSaver::LeaveForm() {
  if (!Designing()) {
    FForm->OnShow = FPreviousOnShow;
    FForm->OnClose = FPreviousOnClose;
  }
  WriteBackWndProc();
  FForm = nullptr;
}

// Written back even when ExtWndProc was never installed and there is nothing to write. An empty
// procedure is no documented value. Wine ignores it, but takes the call for its narrow form and the
// window for one that speaks the code page from then on; another system might call it. So the
// window then gets its own procedure back, before any message can reach it.
void TQELFormSaver::WriteBackWndProc() const {
  if (!FForm->HandleAllocated()) return;
  const HWND window = FForm->Handle();
  const LONG_PTR current = ::GetWindowLongPtrW(window, GWLP_WNDPROC);
  ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(FPreviousWndProc));
  if (!FPreviousWndProc) ::SetWindowLongPtrW(window, GWLP_WNDPROC, current);
}

// While the form is whole: its own components go when its events are no longer there.
void TQELFormSaver::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation == vcl::opRemove && component == FForm && FForm) LeaveForm();
}

void TQELFormSaver::ExtWndProc(vcl::TMessage& message) {
  // The command is compared whole, although the lowest four bits are the system's own: a click into
  // the title bar, which sets some, does not count.
  if (message.Msg == WM_SYSCOMMAND &&
      (message.WParam == SC_MAXIMIZE || message.WParam == SC_MINIMIZE)) {
    BeforeMaximize();
  }
  if (!FForm || !FPreviousWndProc) return;
  message.Result = ::CallWindowProcW(FPreviousWndProc, FForm->Handle(), message.Msg, message.WParam,
                                     message.LParam);
}

void TQELFormSaver::BeforeMaximize() {
  if (!FForm) return;
  FBoundsSaved = true;
  FNormalBounds = {FForm->Left(), FForm->Top(), FForm->Width(), FForm->Height()};
}

// What belongs to storing and restoring.

void TQELFormSaver::Store() {
  vcl::TCloseAction action = vcl::caNone;
  MyStore(FForm, action);
}

void TQELFormSaver::Restore() { MyRestore(FForm); }

void TQELFormSaver::EachForm(void (TQELFormSaver::*handle)(vcl::TForm*)) {
  vcl::TWatch watch(this);
  const vcl::TApplication* const application = vcl::Application();
  for (int i = 0; !watch.Gone() && !FUnreadable && i < application->ComponentCount(); ++i) {
    auto* const form = dynamic_cast<vcl::TForm*>(application->Components(i));
    if (form) (this->*handle)(form);
  }
}

void TQELFormSaver::EachControl(vcl::TWinControl* parent,
                                void (TQELFormSaver::*handle)(vcl::TControl*)) {
  const TRound round(this, parent);
  for (int i = 0; round.GoesOn() && i < parent->ControlCount(); ++i) {
    (this->*handle)(parent->Controls(i));
  }
}

// Names are not qualified by the form unless it is asked for: what programs have stored is named
// that way.
std::string TQELFormSaver::NameOf(const vcl::TControl* control) const {
  const vcl::TCustomForm* const form = FQualifyNames ? control->ParentForm() : nullptr;
  return form ? form->ClassName() + "_" + control->Name() : control->Name();
}

// Storing.

void TQELFormSaver::MyStore(vcl::TObject* sender, vcl::TCloseAction& action) {
  vcl::TWatch watch(this);
  FPreviousOnClose(sender, action);
  if (watch.Gone() || !FFormStore->Enabled()) return;
  OnStore(sender);
  if (!watch.Gone()) StoreForms();
}

// The form is closing, and must not stay because its place can't be kept.
void TQELFormSaver::StoreForms() {
  try {
    EachForm(&TQELFormSaver::StoreWindow);
  } catch (const vcl::EIniFileException&) {
    TellRefusal();
  } catch (const vcl::ERegistryException&) {
    TellRefusal();
  }
}

void TQELFormSaver::TellRefusal() {
  if (FFormStore->OnError) {
    FFormStore->OnError(FFormStore.get());
  } else {
    vcl::BaseApplication().HandleCurrentException(this);
  }
}

void TQELFormSaver::StoreWindow(vcl::TForm* form) {
  using T = TQELFormSaver;
  const TRound round(this, form);
  const std::string& name = form->ClassName();
  if (FStoreState) FFormStore->WriteInt(name + StateSuffix, StateCodes[form->WindowState()]);
  if (round.Wants(&T::FStoreSize)) StoreFormParts(form, round, SizeParts);
  if (round.Wants(&T::FStoreLocation)) StoreFormParts(form, round, LocationParts);
  if (round.Wants(&T::FStoreVisible)) FFormStore->WriteBool(name + VisibleSuffix, form->Visible());
  if (round.Wants(&T::FStoreControls)) EachControl(form, &T::StoreControl);
}

// Bounds that are not the normal ones are of no use: those from before are stored, if they are
// known, which takes a descendant that installs ExtWndProc.
void TQELFormSaver::StoreFormParts(const vcl::TForm* form, const TRound& round, TParts& parts) {
  const std::string& name = form->ClassName();
  if (form->WindowState() == vcl::wsNormal) return StoreParts(form, name, round, parts);
  for (const TPart& part : parts) {
    if (!round.Wants(&TQELFormSaver::FBoundsSaved)) return;
    FFormStore->WriteInt(name + part.Suffix, FNormalBounds.*part.Saved);
  }
}

void TQELFormSaver::StoreParts(const vcl::TControl* control, const std::string& name,
                               const TRound& round, TParts& parts) {
  for (const TPart& part : parts) {
    if (!round.GoesOn()) return;
    FFormStore->WriteInt(name + part.Suffix, (control->*part.Get)());
  }
}

void TQELFormSaver::StoreControl(vcl::TControl* control) {
  using T = TQELFormSaver;
  const TRound round(this, control);
  bool result = true;
  OnStoreControl(control, result);
  if (!result || !round.GoesOn()) return;
  const std::string name = NameOf(control);
  if (FStoreSize) StoreParts(control, name, round, SizeParts);
  if (round.Wants(&T::FStoreLocation)) StoreParts(control, name, round, LocationParts);
  if (round.Wants(&T::FStoreVisible)) {
    FFormStore->WriteBool(name + VisibleSuffix, control->Visible());
  }
  if (!round.GoesOn()) return;
  if (auto* const parent = dynamic_cast<vcl::TWinControl*>(control)) {
    EachControl(parent, &T::StoreControl);
  }
}

// Restoring.

void TQELFormSaver::MyRestore(vcl::TObject* sender) {
  vcl::TWatch watch(this);
  FPreviousOnShow(sender);
  if (watch.Gone()) return;
  if (FFormStore->Enabled()) RestoreForms();
  if (!watch.Gone()) OnRestore(sender);
}

void TQELFormSaver::RestoreForms() {
  const vcl::TSetFor readable(FUnreadable, false, this);
  const TQELDataStore::TStrictReading strict(*FFormStore, this);
  EachForm(&TQELFormSaver::RestoreWindow);
}

/// The stored value; `current`, when it can't be read.
template <class T>
T TQELFormSaver::ReadOr(T current, T (TQELFormSaver::*read)(const std::string&, T),
                        const std::string& ident) {
  try {
    return (this->*read)(ident, current);
  } catch (const vcl::EIniFileException&) {
    FUnreadable = true;                       // All of the file.
  } catch (const vcl::ERegistryException&) {  // NOLINT(bugprone-empty-catch): told below.
  }
  FFormStore->OnError(FFormStore.get());
  return current;
}

// In another order than they are stored: the state comes behind the bounds, which are thereby the
// normal ones of a form that is maximised.
void TQELFormSaver::RestoreWindow(vcl::TForm* form) {
  using T = TQELFormSaver;
  const TRound round(this, form);
  const std::string& name = form->ClassName();
  const auto normal = [&] { return form->WindowState() == vcl::wsNormal; };
  if (FStoreSize && normal()) RestoreParts(form, name, round, SizeParts);
  if (round.Wants(&T::FStoreLocation)) RestoreParts(form, name, round, LocationParts);
  if (round.Wants(&T::FKeepOnScreen) && normal()) MoveOntoScreen(form);
  if (round.Wants(&T::FStoreVisible)) RestoreVisible(form, name, round);
  if (round.Wants(&T::FStoreState)) RestoreState(form, round);
  if (round.Wants(&T::FStoreControls)) EachControl(form, &T::RestoreControl);
}

// Without a stored state the form becomes normal, whatever it is.
void TQELFormSaver::RestoreState(vcl::TForm* form, const TRound& round) {
  const int code =
      ReadOr(StateCodes[vcl::wsNormal], &TQELFormSaver::ReadInt, form->ClassName() + StateSuffix);
  const auto* const found = std::ranges::find(StateCodes, code);
  if (!round.GoesOn() || found == std::end(StateCodes)) return;
  form->SetWindowState(static_cast<vcl::TWindowState>(found - StateCodes));
}

// A control that OnStoreControl spared is read all the same: it keeps its values when nothing is
// stored for it, and gets back what was stored before it was spared.
void TQELFormSaver::RestoreControl(vcl::TControl* control) {
  using T = TQELFormSaver;
  const TRound round(this, control);
  const std::string name = NameOf(control);
  if (FStoreSize) RestoreParts(control, name, round, SizeParts);
  if (round.Wants(&T::FStoreLocation)) RestoreParts(control, name, round, LocationParts);
  if (round.Wants(&T::FStoreVisible)) RestoreVisible(control, name, round);
  if (!round.GoesOn()) return;
  if (auto* const parent = dynamic_cast<vcl::TWinControl*>(control)) {
    EachControl(parent, &T::RestoreControl);
  }
}

void TQELFormSaver::RestoreParts(vcl::TControl* control, const std::string& name,
                                 const TRound& round, TParts& parts) {
  for (const TPart& part : parts) {
    if (!round.GoesOn()) return;
    const int value = ReadOr((control->*part.Get)(), &TQELFormSaver::ReadInt, name + part.Suffix);
    if (round.GoesOn()) (control->*part.Set)(value);
  }
}

void TQELFormSaver::RestoreVisible(vcl::TControl* control, const std::string& name,
                                   const TRound& round) {
  const bool visible = ReadOr(control->Visible(), &TQELFormSaver::ReadBool, name + VisibleSuffix);
  if (round.GoesOn()) control->SetVisible(visible);
}

// Values. The store's own defaults give way to the current value, so that a missing one changes
// nothing, and stay overwritten.

int TQELFormSaver::ReadInt(const std::string& ident, int defaultValue) {
  FFormStore->SetErrorInt(defaultValue);
  return FFormStore->ReadInt(ident);
}

std::string TQELFormSaver::ReadStr(const std::string& ident, const std::string& defaultValue) {
  FFormStore->SetErrorStr(defaultValue);
  return FFormStore->ReadStr(ident);
}

bool TQELFormSaver::ReadBool(const std::string& ident, bool defaultValue) {
  FFormStore->SetErrorBool(defaultValue);
  return FFormStore->ReadBool(ident);
}

}  // namespace qel
