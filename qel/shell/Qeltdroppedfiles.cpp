// TQELDroppedFiles: its table, and the form's drop target, which all on one form share.
#include "qel/shell/Qeltdroppedfiles.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filemasks.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/transfer/droptarget.h"

namespace qel {

/// A window can have one drop target only, so that the form has it, for those on it. It lasts as
/// long as one of them holds it.
class TQELDroppedFiles::TTarget : public std::enable_shared_from_this<TTarget> {
 public:
  /// The one of the form, which is made when it is the first.
  static std::shared_ptr<TTarget> Of(vcl::TWinControl* form) {
    for (TTarget* each : All()) {
      if (each->FTarget.Control() == form) return each->shared_from_this();
    }
    return std::make_shared<TTarget>(form);
  }
  explicit TTarget(vcl::TWinControl* form) {
    FTarget.SetKinds({vcl::dkFiles});
    FTarget.OnDragEnter = [this](vcl::TObject*, const vcl::TDropInfo& info,
                                 vcl::TDropEffect& effect) {
      FFiles = FilesIn(info.Data);
      Drag(info, effect);
    };
    FTarget.OnDragOver = [this](vcl::TObject*, const vcl::TDropInfo& info,
                                vcl::TDropEffect& effect) { Drag(info, effect); };
    FTarget.OnDrop = [this](vcl::TObject*, const vcl::TDropInfo& info, vcl::TDropEffect& effect) {
      FFiles = FilesIn(info.Data);
      Drop(info, effect);
    };
    FTarget.SetControl(form);
    All().push_back(this);
  }
  ~TTarget() { std::erase(All(), this); }
  TTarget(const TTarget&) = delete;
  TTarget& operator=(const TTarget&) = delete;

  void Add(TQELDroppedFiles* taker) { FTakers.push_back(taker); }
  void Remove(TQELDroppedFiles* taker) { std::erase(FTakers, taker); }

 private:
  using TTakers = std::vector<std::pair<TQELDroppedFiles*, vcl::TWatch>>;

  static std::vector<TTarget*>& All() {
    static std::vector<TTarget*> all;
    return all;
  }
  /// Damaged data holds none.
  static std::vector<std::string> FilesIn(const vcl::TTransferData& data) {
    try {
      return data.Files();
    } catch (const vcl::EConvertError&) {
      return {};
    }
  }
  /// Never one that has the files' source take them away.
  static vcl::TDropEffect Effect(vcl::TDropEffects allowed) {
    if (allowed.Has(vcl::deCopy)) return vcl::deCopy;
    return allowed.Has(vcl::deLink) ? vcl::deLink : vcl::deNone;
  }
  const vcl::TControl* Innermost(vcl::TPoint screen) const {
    const vcl::TControl* found = FTarget.Control();
    while (const auto* window = dynamic_cast<const vcl::TWinControl*>(found)) {
      const vcl::TControl* inside = window->ControlAtPos(window->ScreenToClient(screen), true);
      if (!inside) break;
      found = inside;
    }
    return found;
  }
  TTakers TakersAt(vcl::TPoint screen) const {
    TTakers takers;
    for (const vcl::TControl* at = Innermost(screen); at && takers.empty(); at = at->Parent()) {
      if (!at->Enabled()) continue;
      for (TQELDroppedFiles* each : FTakers) {
        if (each->Place() == at && !each->Meant(FFiles).empty())
          takers.emplace_back(each, vcl::TWatch(each));
      }
    }
    return takers;
  }
  void Drag(const vcl::TDropInfo& info, vcl::TDropEffect& effect) const {
    const auto kept = shared_from_this();  // What is told may free all of them.
    const vcl::TPoint screen = FTarget.Control()->ClientToScreen(info.Position);
    effect = vcl::deNone;
    for (const auto& [taker, watch] : TakersAt(screen)) {
      if (!watch.Gone() && taker->Over(FFiles, screen)) effect = Effect(info.Allowed);
    }
  }
  void Drop(const vcl::TDropInfo& info, vcl::TDropEffect& effect) const {
    const auto kept = shared_from_this();
    const vcl::TPoint screen = FTarget.Control()->ClientToScreen(info.Position);
    effect = vcl::deNone;
    for (const auto& [taker, watch] : TakersAt(screen)) {
      if (watch.Gone() || !taker->Over(FFiles, screen)) continue;
      effect = Effect(info.Allowed);
      taker->Drop(FFiles, screen);
    }
  }

  vcl::TDropTarget FTarget{nullptr};
  std::vector<TQELDroppedFiles*> FTakers;
  std::vector<std::string> FFiles;  // Of the drag over the form.
};

const vcl::TClass& TQELDroppedFiles::Class() {
  using T = TQELDroppedFiles;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELDroppedFiles", "qel/shell/Qeltdroppedfiles.h",
                                 {
                                     Property<&T::Active, &T::SetActive>("Active").Default(true),
                                     Property<&T::Control, &T::SetControl>("Control"),
                                     Property<&T::Masks, &T::SetMasks>("Masks").Default(""),
                                     Event<&T::OnDragOver>("OnDragOver"),
                                     Event<&T::OnDrop>("OnDrop"),
                                 });
  return info;
}

TQELDroppedFiles::TQELDroppedFiles(vcl::TComponent* owner) : TQELComponent(owner) { Update(); }

TQELDroppedFiles::~TQELDroppedFiles() {
  AnnounceEnd();
  if (FTarget) FTarget->Remove(this);
}

void TQELDroppedFiles::Loaded() {
  TQELComponent::Loaded();
  Update();
}

void TQELDroppedFiles::SetActive(bool active) {
  FActive = active;
  Update();
}

void TQELDroppedFiles::SetControl(vcl::TControl* control) {
  if (FControl) FControl->RemoveFreeNotification(this);
  FControl = control;
  FForsaken = false;
  if (FControl) FControl->FreeNotification(this);
  Update();
}

void TQELDroppedFiles::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation != vcl::opRemove || component != FControl || !FControl) return;
  FControl = nullptr;
  FForsaken = true;
}

/// The form that the drop target belongs to; null without one.
vcl::TWinControl* TQELDroppedFiles::Form() const {
  if (auto* form = dynamic_cast<vcl::TCustomForm*>(FControl)) return form;
  if (FControl && FControl->ParentForm()) return FControl->ParentForm();
  for (vcl::TComponent* owner = Owner(); owner; owner = owner->Owner()) {
    if (auto* form = dynamic_cast<vcl::TCustomForm*>(owner)) return form;
  }
  return nullptr;
}

void TQELDroppedFiles::Update() {
  vcl::TWinControl* const form = FActive && !Designing() && !Loading() ? Form() : nullptr;
  const std::shared_ptr<TTarget> former = std::exchange(FTarget, nullptr);
  if (former) former->Remove(this);
  if (!form) return;
  FTarget = TTarget::Of(form);
  FTarget->Add(this);
}

/// The control on which files are taken; null for none.
const vcl::TControl* TQELDroppedFiles::Place() const {
  if (FForsaken) return nullptr;
  return FControl ? FControl : Form();
}

std::vector<std::string> TQELDroppedFiles::Meant(const std::vector<std::string>& files) const {
  const vcl::TFileMasks masks(FMasks);
  std::vector<std::string> meant;
  std::ranges::copy_if(files, std::back_inserter(meant), [&masks](const std::string& file) {
    return masks.Matches(vcl::ExtractFileName(file));
  });
  return meant;
}

bool TQELDroppedFiles::Over(const std::vector<std::string>& files, vcl::TPoint screen) {
  if (!Place()) return false;
  const vcl::TWatch watch(this);
  const vcl::TPoint at = Place()->ScreenToClient(screen);
  bool accept = true;
  OnDragOver(this, Meant(files), at.X, at.Y, accept);
  return accept && !watch.Gone();
}

void TQELDroppedFiles::Drop(const std::vector<std::string>& files, vcl::TPoint screen) {
  if (!Place()) return;
  const vcl::TPoint at = Place()->ScreenToClient(screen);
  OnDrop(this, Meant(files), at.X, at.Y);
}

}  // namespace qel
