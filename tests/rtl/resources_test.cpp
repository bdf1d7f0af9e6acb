// Forms in an executable's resources.
#ifdef _WIN32
#include "host/rtl/resources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/rtl/samples.h"

using namespace vcl;
using namespace samples;

namespace {

/// The system's number of the type RCDATA, as its pseudo-pointer.
const char* const RcData = reinterpret_cast<const char*>(std::uintptr_t{10});

TEST(Resources, HoldForms) {
  TSampleTest classes;
  EXPECT_TRUE(ResourceExists(nullptr, "TSampleForm", RcData));
  TResourceStream stream(nullptr, "TSampleForm", RcData);
  std::unique_ptr<TComponent> root(ReadComponentFile(stream, nullptr));
  const auto& form = static_cast<TSampleForm&>(*root);
  EXPECT_EQ(form.Caption(), "From a resource");
  ASSERT_NE(form.Part1, nullptr);
  EXPECT_EQ(form.Part1->Link(), &form);
  EXPECT_THROW(stream.WriteText("x"), EWriteError);
}

TEST(Resources, AreMissedByName) {
  EXPECT_FALSE(ResourceExists(nullptr, "TNoForm", RcData));
  try {
    TResourceStream stream(nullptr, "TNoForm", RcData);
    ADD_FAILURE();
  } catch (const EResNotFound& error) {
    EXPECT_STREQ(error.what(), "Resource TNoForm not found");
  }
}

}  // namespace
#endif
