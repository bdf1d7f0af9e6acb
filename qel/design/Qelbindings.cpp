// The table of the package's editors: which is for which property and which component.
#include "qel/design/Qelbindings.h"

#include "qel/controls/Qeltanimator.h"
#include "qel/controls/Qeltbackground.h"
#include "qel/controls/Qelticqmarquee.h"
#include "qel/controls/Qeltinformationlabel.h"
#include "qel/controls/Qeltlanguagecombo.h"
#include "qel/controls/Qeltpresentation.h"
#include "qel/controls/Qeltversionlabel.h"
#include "qel/core/Qelcomponent.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/dbcontrols/Qeltdblabel.h"
#include "qel/dbcontrols/Qeltdblookupedit.h"
#include "qel/dbcontrols/Qeltdbofficeedit.h"
#include "qel/dbcontrols/Qeltdbsearchform.h"
#include "qel/dbcontrols/Qeltdbstickylabel.h"
#include "qel/design/Qelcolorsinbetween.h"
#include "qel/design/Qelcomponenteditors.h"
#include "qel/design/Qeldataeditors.h"
#include "qel/design/Qelmaileditors.h"
#include "qel/design/Qelpropertyeditors.h"
#include "qel/design/Qelslideseditor.h"
#include "qel/dialogs/Qeltmsgdlg.h"
#include "qel/dialogs/Qeltmsgselect.h"
#include "qel/dialogs/Qeltqueryaccess.h"
#include "qel/dialogs/Qelttiptricks.h"
#include "qel/mail/Qeltiemails.h"
#include "qel/mail/Qeltmapimail.h"
#include "qel/services/Qeltdrivevolume.h"
#include "qel/services/Qeltversiondetails.h"
#include "qel/services/Qeltwallpaper.h"
#include "qel/services/Qeltwaveplayer.h"
#include "qel/shell/Qeltfileexecute.h"
#include "qel/shell/Qeltfilelabel.h"
#include "qel/shell/Qeltfileproperties.h"
#include "qel/shell/Qelticoncombo.h"
#include "qel/shell/Qeltlogfile.h"
#include "vcl/controls/control.h"

namespace qel {
namespace {

#define QEL_EDITOR(name) vcl::PropertyEditorClass<name>(#name)

/// In the order of registration. A class gets its lines here when it comes.
const std::vector<vcl::TPropertyEditorEntry>& PropertyEditors() {
  static const std::vector<vcl::TPropertyEditorEntry> entries = {
      {QEL_EDITOR(TQELAttachmentProperty), "TQELAttachments", &TQELMessage::Class(), "Attachments"},
      {QEL_EDITOR(TQELInetProperty), "TQELMessages", &TQELSMTPMail::Class(), "Messages"},
      {QEL_EDITOR(TQELInetProperty), "TQELMessages", &TQELPOPMail::Class(), "Messages"},
      {QEL_EDITOR(TQELMapiAttachmentProperty), "TQELMapiAttachments", &TQELMapiMessage::Class(),
       "Attachments"},
      {QEL_EDITOR(TQELMapiProperty), "TQELMapiMessages", &TQELMapiMail::Class(), "Messages"},
      {QEL_EDITOR(TQELColorInBetweenProperty), "TStrings", &TQELGradient::Class(),
       "ColorsInBetween"},
      {QEL_EDITOR(TQELItemDataFieldProperty), "string", &vcl::TCollectionItem::Class(),
       "DataField"},
      {QEL_EDITOR(TQELROStringProperty), "string", &TQELDriveVolume::Class(), ""},
      {QEL_EDITOR(TQELROStringProperty), "string", &TQELInformationLabel::Class(), "CaptionValue"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELInformationLabel::Class(), "Caption"},
      {QEL_EDITOR(TQELROBooleanproperty), "Boolean", &TQELDriveVolume::Class(), ""},
      {QEL_EDITOR(TQELROIntegerProperty), "Integer", &TQELDriveVolume::Class(), ""},
      {QEL_EDITOR(TQELShowMeNowProperty), "string", &vcl::TComponent::Class(), "DesignExecute"},
      {QEL_EDITOR(TQELHintProperty), "string", &vcl::TComponent::Class(), "Hint"},
      {QEL_EDITOR(TQELCaptionProperty), "TCaption", &vcl::TControl::Class(), "Caption"},
      {QEL_EDITOR(TQELAboutCompsProperty), "TQELAbout", &vcl::TPersistent::Class(), ""},
      {QEL_EDITOR(TQELDataFieldProperty), "string", &vcl::TComponent::Class(), "DataUsername"},
      {QEL_EDITOR(TQELDataFieldProperty), "string", &vcl::TComponent::Class(), "Datapassword"},
      {QEL_EDITOR(TQELSlidesProperty), "TQELSlides", &TQELPresentation::Class(), "Slides"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELIconCombo::Class(), "Filename"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELIconListbox::Class(), "Filename"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELFileLabel::Class(), "Filename"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELFileProperties::Class(), "Filename"},
      {QEL_EDITOR(TQELAviFilenameProperty), "string", &TQELAnimator::Class(), "Filename"},
      // The store's file name is a property of its Inifile, which this line does not reach; a
      // property of the store itself would get the editor.
      {QEL_EDITOR(TQELINIFilenameProperty), "string", &TQELStoreData::Class(), "Filename"},
      {QEL_EDITOR(TQELWaveFilenameProperty), "string", &TQELWavePlayer::Class(), "WaveFile"},
      {QEL_EDITOR(TQELWaveFilenameProperty), "string", &TQELICQMarquee::Class(), "Filename"},
      {QEL_EDITOR(TQELBitmapFilenameProperty), "string", &TQELWallPaper::Class(), "Filename"},
      {QEL_EDITOR(TQELLogFilenameProperty), "string", &TQELLogFile::Class(), "LogFile"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELVersionLabel::Class(), "Filename"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELVersionLabel::Class(), "Caption"},
      {QEL_EDITOR(TQELLocaleProperty), "string", &TQELLanguageCombo::Class(), "Locale"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELDBLabel::Class(), "Caption"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELDBStickyLabel::Class(), "Caption"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELDBOfficeEdit::Class(), "Text"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELDBLookupedit::Class(), "Text"},
      {QEL_EDITOR(TQELHintProperty), "string", &TQELMsgDlg::Class(), "Text"},
      {QEL_EDITOR(TQELHintProperty), "string", &TQELMsgSelect::Class(), "Text"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELTipTricks::Class(), "Filename"},
      {QEL_EDITOR(TQELDataFieldProperty), "string", &TQELDBSearchForm::Class(), "DefaultField"},
      {QEL_EDITOR(TQELCodeProperty), "string", &TQELQueryAccess::Class(), "Code"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELVersionDetails::Class(), "Filename"},
      {QEL_EDITOR(TQELROCaptionProperty), "TCaption", &TQELFileLabel::Class(), "Caption"},
      {QEL_EDITOR(TQELFilenameProperty), "string", &TQELFileExecute::Class(), "Filename"},
  };
  return entries;
}

#undef QEL_EDITOR

}  // namespace

void RegisterEditors() {
  for (const auto& [editor, type, aClass, property] : PropertyEditors()) {
    vcl::RegisterPropertyEditor(type, aClass, property, editor);
  }
  vcl::RegisterComponentEditor(TQELExecComponent::Class(),
                               vcl::ComponentEditorClass<TQELDialogEditor>("TQELDialogEditor"));
  const auto mailConfig = vcl::ComponentEditorClass<TQELMailConfigEditor>("TQELMailConfigEditor");
  vcl::RegisterComponentEditor(TQELMailHost::Class(), mailConfig);
  vcl::RegisterComponentEditor(TQELMapiMail::Class(), mailConfig);
}

}  // namespace qel
