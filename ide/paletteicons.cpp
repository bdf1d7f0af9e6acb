// Finding the pictures of classes among the resources, and drawing them.
#include "ide/paletteicons.h"

#include <map>
#include <memory>
#include <utility>

#include "vcl/forms/module.h"
#include "vcl/graphics/handles.h"
#include "vcl/rtl/resources.h"
#include "vcl/rtl/win32.h"

namespace ide {

namespace {

using TKey = std::pair<HINSTANCE, std::string>;

const vcl::TBitmap& Loaded(HINSTANCE module, const std::string& name) {
  static std::map<TKey, std::unique_ptr<vcl::TBitmap>> icons;
  auto& icon = icons[{module, name}];
  if (!icon) {
    auto bitmap = std::make_unique<vcl::TBitmap>();
    bitmap->LoadFromResourceName(module, name);
    icon = std::move(bitmap);
  }
  return *icon;
}

}  // namespace

const vcl::TBitmap& ComponentIcon(const vcl::TClass& aClass) {
  for (HINSTANCE module : {vcl::ModuleOf(&aClass), ::GetModuleHandleW(nullptr)}) {
    if (vcl::ResourceExists(module, aClass.Name(), reinterpret_cast<const char*>(RT_BITMAP))) {
      return Loaded(module, aClass.Name());
    }
  }
  return ProgramIcon("COMPONENT");
}

const vcl::TBitmap& ProgramIcon(const std::string& name) {
  return Loaded(::GetModuleHandleW(nullptr), name);
}

void DrawIcon(vcl::TCanvas& canvas, const vcl::TRect& place, const vcl::TBitmap& icon,
              bool dimmed) {
  constexpr BYTE faint = 90;
  const vcl::TMemoryDC source;
  const vcl::TSelection selection(source.Get(), icon.Handle());
  const BLENDFUNCTION blend{AC_SRC_OVER, 0, dimmed ? faint : BYTE{255}, AC_SRC_ALPHA};
  ::AlphaBlend(canvas.Handle(), place.Left, place.Top, place.Width(), place.Height(), source.Get(),
               0, 0, icon.Width(), icon.Height(), blend);
}

}  // namespace ide
