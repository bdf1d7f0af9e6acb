// Which standard editor is for which type.
#include <iterator>

#include "vcl/controls/wincontrol.h"
#include "vcl/designintf/registered.h"
#include "vcl/designintf/standardeditors.h"
#include "vcl/graphics/graphic.h"

namespace vcl {
namespace {

#define VCL_EDITOR(name) PropertyEditorClass<name>(#name)

/// The types that have an editor of their own, as packages' registrations are written.
const std::vector<TPropertyEditorEntry>& TypeEditors() {
  static const std::vector<TPropertyEditorEntry> entries = {
      {VCL_EDITOR(TComponentNameProperty), "TComponentName", &TComponent::Class(), "Name"},
      {VCL_EDITOR(TTabOrderProperty), "Integer", &TWinControl::Class(), "TabOrder"},
      {VCL_EDITOR(TCaptionProperty), "TCaption", nullptr, ""},
      {VCL_EDITOR(TMaskProperty), "TEditMask", nullptr, ""},
      {VCL_EDITOR(TFontNameProperty), "TFontName", nullptr, ""},
      {VCL_EDITOR(TShortCutProperty), "TShortCut", nullptr, ""},
      {VCL_EDITOR(TFontProperty), "TFont", nullptr, ""},
      {VCL_EDITOR(TStringsProperty), "TStrings", nullptr, ""},
      {VCL_EDITOR(TPictureProperty), "TGraphic", nullptr, ""},
      {VCL_EDITOR(TPictureProperty), "TPicture", nullptr, ""},
  };
  return entries;
}

/// The editors of all other types, by TTypeKind.
constexpr TPropertyEditorClass KindEditors[] = {
    VCL_EDITOR(TIntegerProperty),    VCL_EDITOR(TEnumProperty),   VCL_EDITOR(TSetProperty),
    VCL_EDITOR(TCharProperty),       VCL_EDITOR(TStringProperty), VCL_EDITOR(TFloatProperty),
    VCL_EDITOR(TColorProperty),      VCL_EDITOR(TClassProperty),  VCL_EDITOR(TComponentProperty),
    VCL_EDITOR(TCollectionProperty), VCL_EDITOR(TMethodProperty), VCL_EDITOR(TBooleanProperty),
};
static_assert(std::size(KindEditors) == static_cast<std::size_t>(TTypeKind::Boolean) + 1);

/// Of a component that cannot be another one, which is a part of its owner: it stands open like any
/// object.
const TPropertyEditorClass PartEditor = VCL_EDITOR(TClassProperty);

#undef VCL_EDITOR

}  // namespace

const TPropertyEditorClass& detail::StandardEditor(const TClass& aClass,
                                                   const TPropInfo& property) {
  for (const TPropertyEditorEntry& entry : TypeEditors()) {
    if (entry.Fits(aClass, property)) return entry.Editor;
  }
  if (property.Kind() == TTypeKind::Component && property.ReadOnly()) return PartEditor;
  return KindEditors[static_cast<std::size_t>(property.Kind())];
}

}  // namespace vcl
