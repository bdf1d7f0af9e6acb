// The package's classes, registered as its registration entry does.
#pragma once

#include "qel/qel.h"
#include "vcl/vcl.h"

inline void RegisterAll() {
  vcl::RegisterClasses({&qel::TQELFont3D::Class(),        &qel::TQELGradient::Class(),
                        &qel::TQELTexture::Class(),       &qel::TQELFrame::Class(),
                        &qel::TQELAbout::Class(),         &qel::TQELGlyph::Class(),
                        &qel::TQELBrushFill::Class(),     &qel::TQELBackground::Class(),
                        &qel::TQELButton::Class(),        &qel::TQELLabel::Class(),
                        &qel::TQELGauge::Class(),         &qel::TQELHint::Class(),
                        &qel::TQELSpinButton::Class(),    &qel::TQELSpinEdit::Class(),
                        &qel::TQELTimer32::Class(),       &qel::TQELButtonDetails::Class(),
                        &qel::TQELOnlyOne::Class(),       &qel::TQELSystemTray::Class(),
                        &qel::TQELRegistry::Class(),      &qel::TQELIniFile::Class(),
                        &qel::TQELDataStore::Class(),     &qel::TQELStoreData::Class(),
                        &qel::TQELFormSaver::Class(),     &qel::TQELSMTPMail::Class(),
                        &qel::TQELPOPMail::Class(),       &qel::TQELMRUItem::Class(),
                        &qel::TQELMRUMenu::Class(),       &qel::TQELExplorerTree::Class(),
                        &qel::TQELExplorerView::Class(),  &qel::TQELDBAscii::Class(),
                        &qel::TQELMapiMail::Class(),      &qel::TQELQuickMail::Class(),
                        &qel::TQELColorCombo::Class(),    &qel::TQELFontCombo::Class(),
                        &qel::TQELFontBox::Class(),       &qel::TQELCheckList::Class(),
                        &qel::TQELRealSpinEdit::Class(),  &qel::TQELLookupEdit::Class(),
                        &qel::TQELOfficeEdit::Class(),    &qel::TQELLookupMenu::Class(),
                        &qel::TQELLanguageCombo::Class(), &qel::TQELAutoCombo::Class(),
                        &qel::TQELHeader::Class(),        &qel::TQELHeaderList::Class()});
  vcl::RegisterClasses({&qel::TQELCheckbox::Class(), &qel::TQELRadiobutton::Class(),
                        &qel::TQELArrowButton::Class(), &qel::TQELOfficeButton::Class(),
                        &qel::TQELIEButton::Class(), &qel::TQELRoundButton::Class(),
                        &qel::TQELPanel::Class(), &qel::TQELFillBackground::Class(),
                        &qel::TQELFormDivider::Class()});
  vcl::RegisterClasses({&qel::TQELStickyLabel::Class(), &qel::TQELCommandLabel::Class(),
                        &qel::TQELInformationLabel::Class(), &qel::TQELVersionLabel::Class(),
                        &qel::TQELAnimator::Class(), &qel::TQELImageScroller::Class(),
                        &qel::TQELICQMarquee::Class(), &qel::TQELPresentation::Class()});
  vcl::RegisterClasses({&qel::TQELDBLabel::Class(), &qel::TQELDBStickyLabel::Class(),
                        &qel::TQELDBOfficeEdit::Class(), &qel::TQELDBSpinEdit::Class(),
                        &qel::TQELDBLookupedit::Class(), &qel::TQELDBNavigator::Class(),
                        &qel::TQELDBIndexLookup::Class(), &qel::TQELDBImageView::Class(),
                        &qel::TQELDBMemoView::Class(), &qel::TQELDBSearchForm::Class()});
  vcl::RegisterClasses({&qel::TQELFolderBrowser::Class(), &qel::TQELMsgBox::Class(),
                        &qel::TQELMsgDlg::Class(), &qel::TQELMsgSelect::Class(),
                        &qel::TQELShellAbout::Class(), &qel::TQELTipTricks::Class(),
                        &qel::TQELPageSetupDialog::Class(), &qel::TQELSplashScreen::Class()});
  vcl::RegisterClasses({&qel::TQELPasswordDlg::Class(), &qel::TQELQueryAccess::Class(),
                        &qel::TQELDBPasswordDlg::Class()});
  // The services that tell and hold something.
  vcl::RegisterClasses({
      &qel::TQELIllegalAbort::Class(),
      &qel::TQELStartup::Class(),
      &qel::TQELWavePlayer::Class(),
      &qel::TQELTimeTrigger::Class(),
      &qel::TQELResourceInfo::Class(),
      &qel::TQELDriveVolume::Class(),
      &qel::TQELVersionDetails::Class(),
      &qel::TQELSystemDetails::Class(),
      &qel::TQELJokeHolder::Class(),
      &qel::TQELStringHolder::Class(),
  });
  vcl::RegisterClasses({&qel::TQELFormHook::Class(), &qel::TQELFormSizes::Class(),
                        &qel::TQELFormAspect::Class(), &qel::TQELTopMost::Class(),
                        &qel::TQELSystemMenu::Class()});
  vcl::RegisterClasses({&qel::TQELApplication::Class()});
  vcl::RegisterClasses({&qel::TQELExitWindows::Class()});
  vcl::RegisterClasses({&qel::TQELScreenSaver::Class()});
  vcl::RegisterClasses({&qel::TQELWallPaper::Class()});
  vcl::RegisterClasses({&qel::TQELSystemKeys::Class()});
  vcl::RegisterClasses({&qel::TQELMouseController::Class()});
  vcl::RegisterClasses({&qel::TQELCDTriggers::Class()});
  vcl::RegisterClasses({&qel::TQELFormExplode::Class()});
  vcl::RegisterClasses({&qel::TQELClipboard::Class()});
  vcl::RegisterClasses({&qel::TQELScreenCanvas::Class()});
  vcl::RegisterClasses({&qel::TQELFileOperator::Class()});
  vcl::RegisterClasses({&qel::TQELLogFile::Class()});
  vcl::RegisterClasses({&qel::TQELFileLookup::Class()});
  vcl::RegisterClasses({&qel::TQELIconCombo::Class()});
  vcl::RegisterClasses({&qel::TQELIconListbox::Class()});
  vcl::RegisterClasses({&qel::TQELDriveCombo::Class()});
  vcl::RegisterClasses({&qel::TQELFolderListbox::Class()});
  vcl::RegisterClasses({&qel::TQELFileCombo::Class()});
  vcl::RegisterClasses({&qel::TQELFileCollector::Class()});
  vcl::RegisterClasses({&qel::TQELFileProperties::Class()});
  vcl::RegisterClasses({&qel::TQELFileLabel::Class()});
  vcl::RegisterClasses({&qel::TQELFileLabel3D::Class()});
  vcl::RegisterClasses({&qel::TQELFileExecute::Class()});
  vcl::RegisterClasses({&qel::TQELTextReplace::Class()});
  vcl::RegisterClasses({&qel::TQELDroppedFiles::Class()});
  vcl::RegisterClasses({&qel::TQELTextFileView::Class()});
}
