// TSystemPage: the page of components that tell of the system and hold texts.
#pragma once

#include "qel/qel.h"
#include "vcl/forms/frames.h"
#include "vcl/vcl.h"

namespace gallery {

/// The frame of systempage.dfm.
class TSystemPage : public vcl::TFrame {
 public:
  explicit TSystemPage(vcl::TComponent* owner);
  ~TSystemPage() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 private:
  // What the form file fills.
  qel::TQELSystemDetails* Details = nullptr;
  qel::TQELDriveVolume* Volume = nullptr;
  qel::TQELVersionDetails* Version = nullptr;
  qel::TQELResourceInfo* Resources = nullptr;
  qel::TQELTimeTrigger* Minutes = nullptr;
  qel::TQELJokeHolder* Jokes = nullptr;
  qel::TQELStringHolder* Texts = nullptr;
  qel::TQELWavePlayer* Sound = nullptr;
  qel::TQELStartup* Startup = nullptr;
  qel::TQELTopMost* TopMost = nullptr;
  qel::TQELFormAspect* Aspect = nullptr;
  qel::TQELFormSizes* Sizes = nullptr;
  qel::TQELFormHook* Hook = nullptr;
  qel::TQELSystemMenu* Menu = nullptr;
  vcl::TOpenDialog* SoundDialog = nullptr;
  vcl::TLabel* MinutesLabel = nullptr;
  vcl::TEdit* TemplateEdit = nullptr;
  vcl::TLabel* ExpandedLabel = nullptr;
  vcl::TCheckBox* TopMostCheck = nullptr;
  vcl::TCheckBox* AspectCheck = nullptr;
  vcl::TCheckBox* SizesCheck = nullptr;
  vcl::TCheckBox* MenuCheck = nullptr;
  vcl::TLabel* SizeLabel = nullptr;
  vcl::TMemo* Told = nullptr;

  void DetailsClick(vcl::TObject*);
  void VolumeClick(vcl::TObject*);
  void VersionClick(vcl::TObject*);
  void ResourcesClick(vcl::TObject*);
  void ResourcesLow(vcl::TObject*, qel::TQELResource resource, int value);
  void MinutesTrigger(vcl::TObject*, qel::TQELTrigger* item);
  void SoundClick(vcl::TObject*);
  void SoundFinished(vcl::TObject*);
  void JokeClick(vcl::TObject*);
  void StartupClick(vcl::TObject*);
  void TemplateChange(vcl::TObject*);
  void WindowClick(vcl::TObject*);
  void WindowSized(vcl::TObject*, vcl::TMessage&);
  void HelloClick(vcl::TObject*);
  void Tell(const std::string& text);
};

}  // namespace gallery
