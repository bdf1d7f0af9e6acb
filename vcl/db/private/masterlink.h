// How the data set of details hears of its master.
#pragma once

#include <functional>
#include <utility>

#include "vcl/db/datasource.h"

namespace vcl {

class TMasterLink : public TDataLink {
 public:
  /// `follow` is called when the master's current record may be another or has another content,
  /// `post` before the master moves.
  TMasterLink(std::function<void()> follow, std::function<void()> post)
      : FFollow(std::move(follow)), FPost(std::move(post)) {}

 protected:
  void ActiveChanged() override { FFollow(); }
  /// A field that is being edited is followed once its record is posted.
  void RecordChanged(TField* field) override {
    if (!field) FFollow();
  }
  void CheckBrowseMode() override { FPost(); }

 private:
  std::function<void()> FFollow, FPost;
};

}  // namespace vcl
