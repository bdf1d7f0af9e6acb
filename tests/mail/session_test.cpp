// What the sender and the receiver have in common: sessions that end before their time.
#include <utility>

#include "tests/mail/mailsession.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

template <class TFixture>
class MailSession : public TFixture {
 public:
  MailSession() { WriteFile("f", Noise(57)); }

 private:
  const TWorkFolder FFolder{"qel-session"};
};
using TSessions = testing::Types<Sending, Fetching>;
TYPED_TEST_SUITE(MailSession, TSessions);

TYPED_TEST(MailSession, SurvivesTheEndOfTheConnection) {
  for (const auto& [stage, reply] : this->Polite) {
    EXPECT_FALSE(this->Execute({{stage, ""}})) << stage;
    EXPECT_THAT(this->Application.Errors, ElementsAre(HasSubstr("127.0.0.1"))) << stage;
    EXPECT_TRUE(this->Mail->Busy());
    EXPECT_TRUE(this->Mail->Execute()) << "only clears up";
    EXPECT_FALSE(this->Mail->Busy());
  }
  EXPECT_TRUE(this->Execute()) << "all is well again";
  this->Mail->SetPort("1");
  this->Mail->OnError = nullptr;
  EXPECT_FALSE(this->Mail->Execute());
  EXPECT_THAT(this->Application.Errors, ElementsAre(HasSubstr("Cannot connect")));
}

TYPED_TEST(MailSession, IsAbortedWhileItWaits) {
  for (const auto& [stage, reply] : this->Polite) {
    this->Application.OnPump = [&, pumps = 0]() mutable {
      const bool waits =
          stage.empty() || (!this->Heard.empty() && this->Heard.back().starts_with(stage));
      if (waits && ++pumps > 1) this->Mail->Abort();
    };
    EXPECT_FALSE(this->Execute({{stage, Silence}})) << stage;
    this->Application.OnPump = nullptr;
    EXPECT_THAT(this->Application.Errors, IsEmpty());
    EXPECT_THAT(this->Events, Contains("disconnect"));
    EXPECT_FALSE(this->Mail->Busy());
  }
  EXPECT_TRUE(this->Execute()) << "the next session forgets it";
}

TYPED_TEST(MailSession, MayBeFreedByItsHandlersWithOrWithoutItsMessages) {
  for (std::size_t i = 0; i <= std::size(this->EveryEvent); ++i) {
    for (const bool wholeComponent : {true, false}) {
      this->MakeMail();
      this->AddFile("f");
      bool done = false;
      const auto end = [&] {
        if (std::exchange(done, true)) return;
        if (!wholeComponent) return this->Mail->Messages()->Clear();
        delete std::exchange(this->Mail, nullptr);
      };
      if (i < std::size(this->EveryEvent)) {
        this->EveryEvent[i](*this->Mail, end);
      } else {
        this->Application.OnPump = end;
      }
      const bool result = this->Execute({{"QUIT", this->Refusal}});
      EXPECT_TRUE(done) << i;
      EXPECT_FALSE(wholeComponent && result) << i;
    }
  }
  this->Application.OnPump = nullptr;
}

TYPED_TEST(MailSession, IsClosedByACallFromInside) {
  bool nested = false;
  this->EveryEvent[this->InTheMiddle](*this->Mail, [&] {
    if (std::exchange(nested, true)) return;
    EXPECT_TRUE(this->Mail->Execute());
  });
  EXPECT_FALSE(this->Execute());
  EXPECT_THAT(this->Application.Errors, SizeIs(1)) << "the outer one finds its connection closed";
  EXPECT_FALSE(this->Mail->Busy());
  EXPECT_TRUE(this->Execute());
}

}  // namespace
