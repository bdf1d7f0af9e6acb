#include "design/Qelregistration.h"

#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qelthint.h"
#include "controls/Qeltlabel.h"
#include "controls/Qeltspinedit.h"
#include "core/Qelclasses.h"
#include "core/Qelclasses2.h"
#include "core/Qelcontrols.h"
#include "core/Qeltstoredata.h"
#include "data/Qeltdbascii.h"
#include "design/Qelbindings.h"
#include "design/Qeltools.h"
#include "host/designintf/registration.h"
#include "host/rtl/classregistry.h"
#include "mail/Qeltiemails.h"
#include "mail/Qeltmapimail.h"
#include "mail/Qeltquickmail.h"
#include "services/Qeltformsaver.h"
#include "services/Qeltmrumenu.h"
#include "services/Qeltonlyone.h"
#include "services/Qeltsystemtray.h"
#include "shell/Qeltexplorertree.h"

using namespace qel;

namespace {

/// The pages of the palette in their order, and the classes of each in theirs; one line a class.
const std::vector<vcl::TPaletteEntry>& Pages() {
  static const std::vector<vcl::TPaletteEntry> pages = {
      {"QEL Controls/1",
       {
           &TQELBackground::Class(),
           &TQELLabel::Class(),
           &TQELButton::Class(),
           &TQELGauge::Class(),
           &TQELHint::Class(),
       }},
      {"QEL Controls/2",
       {
           &TQELSpinEdit::Class(),
       }},
      {"QEL DBControls",
       {
           &TQELDBAscii::Class(),
       }},
      {"QEL System/1",
       {
           &TQELStoreData::Class(),
           &TQELQuickMail::Class(),
           &TQELSystemTray::Class(),
           &TQELFormSaver::Class(),
           &TQELMRUMenu::Class(),
       }},
      {"QEL System/2",
       {
           &TQELOnlyOne::Class(),
           &TQELTimer32::Class(),
           &TQELPOPMail::Class(),
           &TQELSMTPMail::Class(),
           &TQELMapiMail::Class(),
       }},
      {"QEL Files",
       {
           &TQELExplorerTree::Class(),
       }},
  };
  return pages;
}

}  // namespace

void Register() {
  vcl::RegisterClasses({&TQELFont3D::Class(), &TQELGradient::Class(), &TQELTexture::Class(),
                        &TQELFrame::Class(), &TQELButtonDetails::Class(), &TQELAbout::Class()});
  for (const auto& [page, classes] : Pages()) vcl::RegisterComponents(page, classes);
  RegisterEditors();
}

void RegisterExpert() { RegisterTools(); }

void ListClasses(void (*each)(const vcl::TClass& aClass, void* context), void* context) {
  static const vcl::TClass* const classes[] = {
      &TQELAbout::Class(),
      &TQELComponent::Class(),
      &TQELExecComponent::Class(),
      &TQELCustomDialog::Class(),
      &TQELCustomControl::Class(),
      &TQELGraphicControl::Class(),
      &TQELCustomBackground::Class(),
      &TQELFont3D::Class(),
      &TQELFrame::Class(),
      &TQELGlyph::Class(),
      &TQELGradient::Class(),
      &TQELTexture::Class(),
      &TQELBrushFill::Class(),
      &TQELBackground::Class(),
      &TQELLabel::Class(),
      &TQELButton::Class(),
      &TQELGauge::Class(),
      &TQELHint::Class(),
      &TQELNewHint::Class(),
      &TQELCustomSpinButton::Class(),
      &TQELSpinButton::Class(),
      &TQELCustomSpinEdit::Class(),
      &TQELSpinEdit::Class(),
      &TQELTimer32::Class(),
      &TQELButtonDetails::Class(),
      &TQELRegistry::Class(),
      &TQELIniFile::Class(),
      &TQELDataStore::Class(),
      &TQELStoreData::Class(),
      &TQELSystemTray::Class(),
      &TQELFormSaver::Class(),
      &TQELMRUItem::Class(),
      &TQELMRUMenu::Class(),
      &TQELOnlyOne::Class(),
      &TQELAttachment::Class(),
      &TQELAttachments::Class(),
      &TQELMessage::Class(),
      &TQELMessages::Class(),
      &TQELMailHost::Class(),
      &TQELSMTPMail::Class(),
      &TQELPOPMail::Class(),
      &TQELMapiAttachment::Class(),
      &TQELMapiAttachments::Class(),
      &TQELMapiMessage::Class(),
      &TQELMapiMessages::Class(),
      &TQELMapiMail::Class(),
      &TQELQuickMail::Class(),
      &TQELADField::Class(),
      &TQELADFields::Class(),
      &TQELDBAscii::Class(),
      &TQELExplorerTree::Class(),
  };
  for (const vcl::TClass* aClass : classes) each(*aClass, context);
}
