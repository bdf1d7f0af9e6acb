// TAnimate: opening clips and playing them.
#include "vcl/stdctrls/animate.h"

#include <cstring>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

EAnimateError::~EAnimateError() = default;

const TClass& TAnimate::Class() {
  using T = TAnimate;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TAnimate", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Property<&T::AutoSize, &T::SetAutoSize>("AutoSize").Default(true),
          Property<&T::Center, &T::SetCenter>("Center").Default(true),
          Inherit("Color"),
          Property<&T::FileName, &T::SetFileName>("FileName").Default(""),
          Property<&T::ResName, &T::SetResName>("ResName").Default(""),
          Property<&T::ResId, &T::SetResId>("ResId").Default(0),
          Inherit("ParentColor"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::Repetitions, &T::SetRepetitions>("Repetitions").Default(0),
          Inherit("ShowHint"),
          Property<&T::StartFrame, &T::SetStartFrame>("StartFrame").Default(1),
          Property<&T::StopFrame, &T::SetStopFrame>("StopFrame").Default(0),
          Property<&T::Transparent, &T::SetTransparent>("Transparent").Default(true),
          Inherit("Visible"),
          // Behind what says how and what to play.
          Property<&T::Active, &T::SetActive>("Active").Default(false),
          Event<&T::OnOpen>("OnOpen"),
          Event<&T::OnClose>("OnClose"),
          Event<&T::OnStart>("OnStart"),
          Event<&T::OnStop>("OnStop"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(MouseEvents),
      });
  return info;
}

TAnimate::TAnimate(TComponent* owner) : TWinControl(owner) {
  SetBounds(0, 0, 100, 80);
  HearOnlyAsked<TAnimate>();
}

std::string TAnimate::TSource::Shown() const {
  if (!FileName.empty()) return FileName;
  return ResName.empty() ? Concat("#", std::to_string(ResId)) : ResName;
}

namespace {

/// The bytes of the program's resource; empty when it has none of that name.
std::string ResourceBytes(const wchar_t* name) {
  const HMODULE module = ::GetModuleHandleW(nullptr);
  const HRSRC place = ::FindResourceW(module, name, L"AVI");
  const HGLOBAL loaded = place ? ::LoadResource(module, place) : nullptr;
  const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
  if (!bytes) return {};
  return {static_cast<const char*>(bytes), ::SizeofResource(module, place)};
}

int NumberAt(const std::string& bytes, std::size_t at) {
  std::int32_t number = 0;
  std::memcpy(&number, bytes.data() + at, sizeof number);
  return number;
}

}  // namespace

/// Reads the clip's header (RIFF AVI, MainAVIHeader), as the system's control tells none of it.
TAnimate::TClip TAnimate::ReadClip(const TSource& source) {
  constexpr std::int64_t headerSize = 88;
  constexpr std::size_t frames = 48;
  constexpr std::size_t width = 64;
  constexpr std::size_t height = 68;
  std::string bytes;
  if (!source.FileName.empty()) {
    try {
      TFileStream file(source.FileName, fmOpenRead | fmShareDenyNone);
      bytes.resize(static_cast<std::size_t>(headerSize));
      bytes.resize(static_cast<std::size_t>(file.Read(bytes.data(), headerSize)));
    } catch (const EStreamError& error) {
      throw EAnimateError(error.Message());
    }
  } else {
    bytes = ResourceBytes(source.ResName.empty() ? MAKEINTRESOURCEW(source.ResId)
                                                 : ToUtf16(source.ResName).c_str());
  }
  const bool known = bytes.size() >= static_cast<std::size_t>(headerSize) &&
                     bytes.starts_with("RIFF") && bytes.compare(8, 4, "AVI ") == 0 &&
                     bytes.compare(24, 4, "avih") == 0 && NumberAt(bytes, frames) > 0;
  if (!known) throw EAnimateError(Concat("'", source.Shown(), "' is no clip that can be played"));
  return {NumberAt(bytes, frames), NumberAt(bytes, width), NumberAt(bytes, height)};
}

void TAnimate::SetSource(const TSource& source) {
  TClip clip;
  try {
    if (!source.Empty()) clip = ReadClip(source);
  } catch (const EAnimateError& error) {
    if (!Loading()) throw;
    // The form is there without its clip, under whose name it is saved again.
    Application()->HandleException(this, error);
  }
  const TSource former = Source();
  const TClip formerClip = FClip;
  const auto take = [this](const TSource& from, const TClip& with) {
    FFileName = from.FileName;
    FResName = from.ResName;
    FResId = from.ResId;
    FClip = with;
  };
  const TWatch watch(this);
  if (Open()) {
    FClip = {};
    SendIfAllocated(*this, ACM_OPENW);
    OnClose(this);
    if (watch.Gone()) return;
  }
  take(source, clip);
  if (!Open()) return;
  {
    const TOnFailure refused([&] { take(former, formerClip), OpenInWindow(); }, this);
    OpenInWindow();
  }
  FitToClip();
  if (watch.Gone()) return;
  OnOpen(this);
  if (!watch.Gone()) PlayInWindow();
}

void TAnimate::SetFileName(const std::string& fileName) {
  if (fileName != FFileName) SetSource({fileName, {}, 0});
}
void TAnimate::SetResName(const std::string& name) {
  if (name != FResName) SetSource({{}, name, 0});
}
void TAnimate::SetResId(int id) {
  if (id != FResId) SetSource({{}, {}, id});
}

void TAnimate::FitToClip() {
  if (FAutoSize && Open() && !Loading()) SetBounds(Left(), Top(), FClip.Width, FClip.Height);
}

/// What a window only takes when it is made.
template <class T>
void TAnimate::ChangeStyle(T& field, T value) {
  if (value == field) return;
  field = value;
  RecreateWnd();
}

void TAnimate::SetCenter(bool center) { ChangeStyle(FCenter, center); }
void TAnimate::SetTransparent(bool transparent) { ChangeStyle(FTransparent, transparent); }

void TAnimate::SetAutoSize(bool autoSize) {
  FAutoSize = autoSize;
  FitToClip();
}

void TAnimate::SetRepetitions(int repetitions) {
  if (repetitions < 0) {
    throw EArgumentOutOfRangeException(
        Concat("A clip cannot be played ", std::to_string(repetitions), " times"));
  }
  FRepetitions = repetitions;
  PlayInWindow();
}

void TAnimate::CheckFrame(int frame, int least) const {
  constexpr int most = 0xFFFE;  // The system counts them in 16 bits.
  if (frame >= least && frame <= most) return;
  throw EArgumentOutOfRangeException(Concat("There is no frame ", std::to_string(frame)));
}

void TAnimate::SetStartFrame(int frame) {
  CheckFrame(frame, 1);
  FStartFrame = frame;
  PlayInWindow();
}

void TAnimate::SetStopFrame(int frame) {
  CheckFrame(frame, 0);
  FStopFrame = frame;
  PlayInWindow();
}

void TAnimate::SetActive(bool active) {
  if (active == FActive) return;
  FActive = active;
  active ? PlayInWindow() : SendIfAllocated(*this, ACM_STOP);
}

void TAnimate::Seek(int frame) {
  CheckFrame(frame, 1);
  if (frame > FrameCount()) {
    throw EArgumentOutOfRangeException(Concat("There is no frame ", std::to_string(frame), ": '",
                                              Source().Shown(), "' has ",
                                              std::to_string(FrameCount())));
  }
  SetActive(false);
  Send(*this, ACM_PLAY, 1, MAKELPARAM(frame - 1, frame - 1));
}

void TAnimate::OpenInWindow() {
  if (!HandleAllocated() || !Open()) return;
  const std::wstring name = ToUtf16(FFileName.empty() ? FResName : FFileName);
  const wchar_t* which = name.empty() ? MAKEINTRESOURCEW(FResId) : name.c_str();
  const auto module = FFileName.empty() ? ::GetModuleHandleW(nullptr) : nullptr;
  const LRESULT opened =
      Send(*this, ACM_OPENW, reinterpret_cast<WPARAM>(module), reinterpret_cast<LPARAM>(which));
  if (!opened) {
    throw EAnimateError(
        Concat("The system cannot play '", Source().Shown(), "': it has sound, or is compressed"));
  }
}

void TAnimate::PlayInWindow() {
  if (!FActive || !Open() || !HandleAllocated() || Loading()) return;
  const int last = FStopFrame == 0 ? 0xFFFF : FStopFrame - 1;
  Send(*this, ACM_PLAY, FRepetitions == 0 ? static_cast<WPARAM>(-1) : FRepetitions,
       MAKELPARAM(FStartFrame - 1, last));
}

void TAnimate::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_ANIMATE_CLASS);
  TWinControl::CreateParams(params);
  params.SubClassOf = "SysAnimate32";
  if (FCenter) params.Style |= ACS_CENTER;
  if (FTransparent) params.Style |= ACS_TRANSPARENT;
}

void TAnimate::CreateWnd() {
  TWinControl::CreateWnd();
  try {
    OpenInWindow();
    PlayInWindow();
  } catch (const EAnimateError& error) {
    FClip = {};
    Application()->HandleException(this, error);
  }
}

void TAnimate::Dispatch(TMessage& message) {
  if (message.Msg != CN_COMMAND) return TWinControl::Dispatch(message);
  if (ControlState().Has(csDestroyingHandle)) return;
  if (HIWORD(message.WParam) == ACN_START) OnStart(this);
  if (HIWORD(message.WParam) != ACN_STOP) return;
  FActive = false;
  OnStop(this);
}

void TAnimate::Loaded() {
  TWinControl::Loaded();
  FitToClip();
  PlayInWindow();
}

void TAnimate::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arGraphic;
}

}  // namespace vcl
