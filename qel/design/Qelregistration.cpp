// The palette pages with their classes, and the package's entry points.
#include "qel/design/Qelregistration.h"

#include "qel/controls/Qeltanimator.h"
#include "qel/controls/Qeltarrowbutton.h"
#include "qel/controls/Qeltautocombo.h"
#include "qel/controls/Qeltbackground.h"
#include "qel/controls/Qeltbutton.h"
#include "qel/controls/Qeltcheckbox.h"
#include "qel/controls/Qeltchecklist.h"
#include "qel/controls/Qeltcolorcombo.h"
#include "qel/controls/Qeltcommandlabel.h"
#include "qel/controls/Qeltfillbackground.h"
#include "qel/controls/Qeltfontcombo.h"
#include "qel/controls/Qeltformdivider.h"
#include "qel/controls/Qeltgauge.h"
#include "qel/controls/Qeltheader.h"
#include "qel/controls/Qeltheaderlist.h"
#include "qel/controls/Qelthint.h"
#include "qel/controls/Qelticqmarquee.h"
#include "qel/controls/Qeltiebutton.h"
#include "qel/controls/Qeltimagescroller.h"
#include "qel/controls/Qeltinformationlabel.h"
#include "qel/controls/Qeltlabel.h"
#include "qel/controls/Qeltlanguagecombo.h"
#include "qel/controls/Qeltlookupedit.h"
#include "qel/controls/Qeltlookupmenu.h"
#include "qel/controls/Qeltofficebutton.h"
#include "qel/controls/Qeltofficeedit.h"
#include "qel/controls/Qeltpanel.h"
#include "qel/controls/Qeltpresentation.h"
#include "qel/controls/Qeltrealspinedit.h"
#include "qel/controls/Qeltroundbutton.h"
#include "qel/controls/Qeltspinedit.h"
#include "qel/controls/Qeltstickylabel.h"
#include "qel/controls/Qeltversionlabel.h"
#include "qel/core/Qelactioncomponent.h"
#include "qel/core/Qelclasses.h"
#include "qel/core/Qelclasses2.h"
#include "qel/core/Qelcontrols.h"
#include "qel/core/Qeltstoredata.h"
#include "qel/data/Qeltdbascii.h"
#include "qel/dbcontrols/Qeltdbimageview.h"
#include "qel/dbcontrols/Qeltdbindexlookup.h"
#include "qel/dbcontrols/Qeltdblabel.h"
#include "qel/dbcontrols/Qeltdblookupedit.h"
#include "qel/dbcontrols/Qeltdbmemoview.h"
#include "qel/dbcontrols/Qeltdbnavigator.h"
#include "qel/dbcontrols/Qeltdbofficeedit.h"
#include "qel/dbcontrols/Qeltdbpassworddlg.h"
#include "qel/dbcontrols/Qeltdbsearchform.h"
#include "qel/dbcontrols/Qeltdbspinedit.h"
#include "qel/dbcontrols/Qeltdbstickylabel.h"
#include "qel/design/Qelbindings.h"
#include "qel/design/Qeltools.h"
#include "qel/dialogs/Qeltfolderbrowser.h"
#include "qel/dialogs/Qeltmsgbox.h"
#include "qel/dialogs/Qeltmsgdlg.h"
#include "qel/dialogs/Qeltmsgselect.h"
#include "qel/dialogs/Qeltpagesetupdialog.h"
#include "qel/dialogs/Qeltpassworddlg.h"
#include "qel/dialogs/Qeltqueryaccess.h"
#include "qel/dialogs/Qeltshellabout.h"
#include "qel/dialogs/Qeltsplashscreen.h"
#include "qel/dialogs/Qelttiptricks.h"
#include "qel/mail/Qeltiemails.h"
#include "qel/mail/Qeltmapimail.h"
#include "qel/mail/Qeltquickmail.h"
#include "qel/services/Qeltapplication.h"
#include "qel/services/Qeltcdtriggers.h"
#include "qel/services/Qeltclipboard.h"
#include "qel/services/Qeltdrivevolume.h"
#include "qel/services/Qeltexitwindows.h"
#include "qel/services/Qeltformaspect.h"
#include "qel/services/Qeltformexplode.h"
#include "qel/services/Qeltformhook.h"
#include "qel/services/Qeltformsaver.h"
#include "qel/services/Qeltformsizes.h"
#include "qel/services/Qeltillegalabort.h"
#include "qel/services/Qeltjokeholder.h"
#include "qel/services/Qeltmousecontroller.h"
#include "qel/services/Qeltmrumenu.h"
#include "qel/services/Qeltonlyone.h"
#include "qel/services/Qeltresourceinfo.h"
#include "qel/services/Qeltscreencanvas.h"
#include "qel/services/Qeltscreensaver.h"
#include "qel/services/Qeltstartup.h"
#include "qel/services/Qeltstringholder.h"
#include "qel/services/Qeltsystemdetails.h"
#include "qel/services/Qeltsystemkeys.h"
#include "qel/services/Qeltsystemmenu.h"
#include "qel/services/Qeltsystemtray.h"
#include "qel/services/Qelttimetrigger.h"
#include "qel/services/Qelttopmost.h"
#include "qel/services/Qeltversiondetails.h"
#include "qel/services/Qeltwallpaper.h"
#include "qel/services/Qeltwaveplayer.h"
#include "qel/shell/Qeltdrivecombo.h"
#include "qel/shell/Qeltdroppedfiles.h"
#include "qel/shell/Qeltexplorertree.h"
#include "qel/shell/Qeltexplorerview.h"
#include "qel/shell/Qeltfilecollector.h"
#include "qel/shell/Qeltfilecombo.h"
#include "qel/shell/Qeltfileexecute.h"
#include "qel/shell/Qeltfilelabel.h"
#include "qel/shell/Qeltfilelookup.h"
#include "qel/shell/Qeltfileoperator.h"
#include "qel/shell/Qeltfileproperties.h"
#include "qel/shell/Qeltfolderlistbox.h"
#include "qel/shell/Qelticoncombo.h"
#include "qel/shell/Qeltlogfile.h"
#include "qel/shell/Qelttextfileview.h"
#include "qel/shell/Qelttextreplace.h"
#include "vcl/designintf/registration.h"
#include "vcl/rtl/classregistry.h"

using namespace qel;

namespace {

/// The pages of the palette in their order, and the classes of each in theirs; one line a class.
const std::vector<vcl::TPaletteEntry>& Pages() {
  static const std::vector<vcl::TPaletteEntry> pages = {
      {"QEL Controls/1",
       {
           &TQELBackground::Class(),
           &TQELCheckbox::Class(),
           &TQELRadiobutton::Class(),
           &TQELLabel::Class(),
           &TQELButton::Class(),
           &TQELIEButton::Class(),
           &TQELOfficeButton::Class(),
           &TQELPanel::Class(),
           &TQELGauge::Class(),
           &TQELPresentation::Class(),
           &TQELHint::Class(),
           &TQELFillBackground::Class(),
           &TQELArrowButton::Class(),
           &TQELRoundButton::Class(),
           &TQELHeader::Class(),
           &TQELHeaderList::Class(),
       }},
      {"QEL Controls/2",
       {
           &TQELColorCombo::Class(),       &TQELAnimator::Class(),     &TQELClipboard::Class(),
           &TQELImageScroller::Class(),    &TQELScreenCanvas::Class(), &TQELCommandLabel::Class(),
           &TQELInformationLabel::Class(), &TQELStickyLabel::Class(),  &TQELVersionLabel::Class(),
           &TQELLookupMenu::Class(),       &TQELSpinEdit::Class(),     &TQELRealSpinEdit::Class(),
           &TQELLookupEdit::Class(),       &TQELOfficeEdit::Class(),   &TQELOfficeEdit::Class(),
           &TQELAnimator::Class(),         &TQELFontCombo::Class(),    &TQELFontBox::Class(),
           &TQELCheckList::Class(),
       }},
      {"QEL Controls/3",
       {
           &TQELLanguageCombo::Class(),
           &TQELAutoCombo::Class(),
           &TQELFormDivider::Class(),
       }},
      {"QEL DBControls",
       {
           &TQELDBSearchForm::Class(),
           &TQELDBLookupedit::Class(),
           &TQELDBLabel::Class(),
           &TQELDBNavigator::Class(),
           &TQELDBPasswordDlg::Class(),
           &TQELDBIndexLookup::Class(),
           &TQELDBOfficeEdit::Class(),
           &TQELDBAscii::Class(),
           &TQELDBSpinEdit::Class(),
           &TQELDBStickyLabel::Class(),
           &TQELDBImageView::Class(),
           &TQELDBMemoView::Class(),
       }},
      {"QEL Dialogs",
       {
           &TQELPasswordDlg::Class(),
           &TQELTipTricks::Class(),
           &TQELMsgBox::Class(),
           &TQELMsgDlg::Class(),
           &TQELQueryAccess::Class(),
           &TQELShellAbout::Class(),
           &TQELSplashScreen::Class(),
           &TQELMsgSelect::Class(),
           &TQELFolderBrowser::Class(),
           &TQELPageSetupDialog::Class(),
       }},
      {"QEL System/1",
       {
           &TQELStoreData::Class(),
           &TQELTimeTrigger::Class(),
           &TQELApplication::Class(),
           &TQELQuickMail::Class(),
           &TQELResourceInfo::Class(),
           &TQELSystemDetails::Class(),
           &TQELSystemTray::Class(),
           &TQELWavePlayer::Class(),
           &TQELExitWindows::Class(),
           &TQELJokeHolder::Class(),
           &TQELFormSaver::Class(),
           &TQELStringHolder::Class(),
           &TQELDriveVolume::Class(),
           &TQELScreenSaver::Class(),
           &TQELMRUMenu::Class(),
           &TQELIllegalAbort::Class(),
       }},
      {"QEL System/2",
       {
           &TQELOnlyOne::Class(),
           &TQELFormExplode::Class(),
           &TQELTopMost::Class(),
           &TQELTimer32::Class(),
           &TQELFormSizes::Class(),
           &TQELSystemMenu::Class(),
           &TQELFormAspect::Class(),
           &TQELWallPaper::Class(),
           &TQELStartup::Class(),
           &TQELVersionDetails::Class(),
           &TQELFormHook::Class(),
           &TQELPOPMail::Class(),
           &TQELSMTPMail::Class(),
           &TQELICQMarquee::Class(),
           &TQELCDTriggers::Class(),
           &TQELSystemKeys::Class(),
           &TQELMouseController::Class(),
           &TQELMapiMail::Class(),
       }},
      {"QEL Files",
       {
           &TQELFileOperator::Class(),
           &TQELTextFileView::Class(),
           &TQELDroppedFiles::Class(),
           &TQELLogFile::Class(),
           &TQELTextReplace::Class(),
           &TQELFileCollector::Class(),
           &TQELFileLabel3D::Class(),
           &TQELFileProperties::Class(),
           &TQELFileExecute::Class(),
           &TQELFileCombo::Class(),
           &TQELDriveCombo::Class(),
           &TQELFolderListbox::Class(),
           &TQELIconCombo::Class(),
           &TQELIconListbox::Class(),
           &TQELExplorerView::Class(),
           &TQELExplorerTree::Class(),
           &TQELFileLookup::Class(),
           &TQELFileLabel::Class(),
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
      &TQELCustomLabel::Class(),
      &TQELComputedLabel::Class(),
      &TQELLabel::Class(),
      &TQELStickyLabel::Class(),
      &TQELCommandLabel::Class(),
      &TQELInformationLabel::Class(),
      &TQELVersionLabel::Class(),
      &TQELAnimator::Class(),
      &TQELImageScroller::Class(),
      &TQELICQMarquee::Class(),
      &TQELSlide::Class(),
      &TQELSlides::Class(),
      &TQELPresentation::Class(),
      &TQELCustomButton::Class(),
      &TQELButton::Class(),
      &TQELCustomCheck::Class(),
      &TQELCheckbox::Class(),
      &TQELRadiobutton::Class(),
      &TQELArrowButton::Class(),
      &TQELOfficeButton::Class(),
      &TQELIEButton::Class(),
      &TQELRoundButton::Class(),
      &TQELPanel::Class(),
      &TQELCustomFillBackground::Class(),
      &TQELFillBackground::Class(),
      &TQELFormDivider::Class(),
      &TQELGauge::Class(),
      &TQELHint::Class(),
      &TQELNewHint::Class(),
      &TQELHeaderSection::Class(),
      &TQELHeaderSections::Class(),
      &TQELHeader::Class(),
      &TQELHeaderList::Class(),
      &TQELCustomSpinButton::Class(),
      &TQELSpinButton::Class(),
      &TQELCustomStepEdit::Class(),
      &TQELCustomSpinEdit::Class(),
      &TQELSpinEdit::Class(),
      &TQELRealSpinEdit::Class(),
      &TQELColorCombo::Class(),
      &TQELFontCombo::Class(),
      &TQELFontBox::Class(),
      &TQELCheckList::Class(),
      &TQELCustomPartEdit::Class(),
      &TQELLookupEdit::Class(),
      &TQELOfficeEdit::Class(),
      &TQELLookupMenu::Class(),
      &TQELLanguageCombo::Class(),
      &TQELTimer32::Class(),
      &TQELButtonDetails::Class(),
      &TQELRegistry::Class(),
      &TQELIniFile::Class(),
      &TQELDataStore::Class(),
      &TQELStoreData::Class(),
      &TQELAutoCombo::Class(),
      &TQELSystemTray::Class(),
      &TQELHelpDialog::Class(),
      &TQELFormDialog::Class(),
      &TQELMsgDlg::Class(),
      &TQELMsgSelect::Class(),
      &TQELFormSaver::Class(),
      &TQELMRUItem::Class(),
      &TQELMRUMenu::Class(),
      &TQELStringGroup::Class(),
      &TQELStringGroups::Class(),
      &TQELStringHolder::Class(),
      &TQELJokeHolder::Class(),
      &TQELSystemDetails::Class(),
      &TQELVersionDetails::Class(),
      &TQELDriveVolume::Class(),
      &TQELResourceLimits::Class(),
      &TQELResourceInfo::Class(),
      &TQELTrigger::Class(),
      &TQELTriggers::Class(),
      &TQELTimeTrigger::Class(),
      &TQELWavePlayer::Class(),
      &TQELStartup::Class(),
      &TQELIllegalAbort::Class(),
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
      &TQELDBLabel::Class(),
      &TQELDBStickyLabel::Class(),
      &TQELDBOfficeEdit::Class(),
      &TQELDBSpinEdit::Class(),
      &TQELDBLookupedit::Class(),
      &TQELDBNavigator::Class(),
      &TQELDBSearchForm::Class(),
      &TQELDBIndexLookup::Class(),
      &TQELDBImageView::Class(),
      &TQELDBMemoView::Class(),
      &TQELExplorerTree::Class(),
      &TQELExplorerView::Class(),
      &TQELTipTricks::Class(),
      &TQELFolderBrowser::Class(),
      &TQELMsgBox::Class(),
      &TQELShellAbout::Class(),
      &TQELPageMargins::Class(),
      &TQELPageSetupDialog::Class(),
      &TQELSplashScreen::Class(),
      &TQELSecretDialog::Class(),
      &TQELPasswordDlg::Class(),
      &TQELQueryAccess::Class(),
      &TQELDBPasswordDlg::Class(),
      &TQELActionComponent::Class(),
      &TQELApplication::Class(),
      &TQELExitWindows::Class(),
      &TQELScreenSaver::Class(),
      &TQELWallPaper::Class(),
      &TQELSystemKey::Class(),
      &TQELSystemKeyList::Class(),
      &TQELSystemKeys::Class(),
      &TQELMouseController::Class(),
      &TQELCDTriggers::Class(),
      &TQELFormExplode::Class(),
      &TQELClipboard::Class(),
      &TQELScreenCanvas::Class(),
      &TQELFileOperator::Class(),
      &TQELLogFile::Class(),
      &TQELFileLookup::Class(),
      &TQELIconCombo::Class(),
      &TQELIconListbox::Class(),
      &TQELDriveCombo::Class(),
      &TQELFolderListbox::Class(),
      &TQELFileCombo::Class(),
      &TQELFileCollector::Class(),
      &TQELFileProperties::Class(),
      &TQELFileLabel::Class(),
      &TQELFileLabel3D::Class(),
      &TQELFileExecute::Class(),
      &TQELTextReplace::Class(),
      &TQELDroppedFiles::Class(),
      &TQELTextFileView::Class(),
  };
  for (const vcl::TClass* aClass : classes) each(*aClass, context);
}
