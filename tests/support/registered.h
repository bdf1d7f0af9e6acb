// The package's classes, registered as its registration entry does.
#pragma once

#include "qel/qel.h"
#include "vcl/vcl.h"

inline void RegisterAll() {
  vcl::RegisterClasses({&qel::TQELFont3D::Class(),     &qel::TQELGradient::Class(),
                        &qel::TQELTexture::Class(),    &qel::TQELFrame::Class(),
                        &qel::TQELAbout::Class(),      &qel::TQELGlyph::Class(),
                        &qel::TQELBrushFill::Class(),  &qel::TQELBackground::Class(),
                        &qel::TQELButton::Class(),     &qel::TQELLabel::Class(),
                        &qel::TQELGauge::Class(),      &qel::TQELHint::Class(),
                        &qel::TQELSpinButton::Class(), &qel::TQELSpinEdit::Class(),
                        &qel::TQELTimer32::Class(),    &qel::TQELButtonDetails::Class(),
                        &qel::TQELOnlyOne::Class(),    &qel::TQELSystemTray::Class(),
                        &qel::TQELRegistry::Class(),   &qel::TQELIniFile::Class(),
                        &qel::TQELDataStore::Class(),  &qel::TQELStoreData::Class(),
                        &qel::TQELFormSaver::Class(),  &qel::TQELSMTPMail::Class(),
                        &qel::TQELPOPMail::Class(),    &qel::TQELMRUItem::Class(),
                        &qel::TQELMRUMenu::Class(),    &qel::TQELExplorerTree::Class(),
                        &qel::TQELDBAscii::Class(),    &qel::TQELMapiMail::Class(),
                        &qel::TQELQuickMail::Class(),  &qel::TQELColorCombo::Class(),
                        &qel::TQELFontCombo::Class(),  &qel::TQELFontBox::Class(),
                        &qel::TQELCheckList::Class(),  &qel::TQELRealSpinEdit::Class(),
                        &qel::TQELLookupEdit::Class(), &qel::TQELOfficeEdit::Class(),
                        &qel::TQELLookupMenu::Class(), &qel::TQELLanguageCombo::Class(),
                        &qel::TQELAutoCombo::Class()});
}
