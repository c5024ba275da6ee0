#include "program/windows.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

class Noted : public Window {
public:
    Noted(std::string name, Modality mode, std::vector<std::string>& notes)
        : name_(std::move(name)), mode_(mode), notes_(notes) {}
    [[nodiscard]] std::string_view Name() const override { return name_; }
    [[nodiscard]] Modality Mode() const override { return mode_; }
    void Form_Load(Program&) override { notes_.push_back("load " + name_); }
    void Form_Unload(Program&) override { notes_.push_back("unload " + name_); }
    void Form_Follow(Program&) override { notes_.push_back("follow " + name_); }
    void KeepUnsaved(Program&) override { notes_.push_back("keep " + name_); }
    [[nodiscard]] bool MayLeave(Program&, Leaving) override {
        notes_.push_back("ask " + name_);
        return Leaves;
    }
    [[nodiscard]] bool BelongsToProposal() const override { return OfProposal; }

    bool OfProposal = false;
    bool Leaves = true;

private:
    std::string name_;
    Modality mode_;
    std::vector<std::string>& notes_;
};

struct Opened : Settled {
    Noted& Open(const std::string& name, Modality mode = Modality::Modeless) {
        return dynamic_cast<Noted&>(modWindows::Show(program, std::make_unique<Noted>(name, mode, notes)));
    }
    /// What the windows noted since the last look.
    [[nodiscard]] std::vector<std::string> Notes() { return std::exchange(notes, {}); }
    std::vector<std::string> notes;
};

TEST(Windows, AreUnloadedFromTheLastToTheFirst) {
    Opened run;
    run.Open("a");
    run.Open("b");
    run.Open("c");
    modWindows::UnloadAll(run.program);
    EXPECT_EQ(run.notes,
              (std::vector<std::string>{"load a", "load b", "load c", "unload c", "unload b", "unload a"}));
    modWindows::Sweep(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
}

TEST(Windows, AreUnloadedOnceAndStayUntilTheEventHasEnded) {
    Opened run;
    Window& window = run.Open("a");
    modWindows::Close(run.program, window);
    modWindows::Close(run.program, window);
    modWindows::UnloadAll(run.program);
    EXPECT_EQ(run.notes, (std::vector<std::string>{"load a", "unload a"}));
    EXPECT_EQ(run.program.windows.Open.size(), 1U);
    EXPECT_EQ(modWindows::Find(run.program, "a"), nullptr);
    modWindows::Sweep(run.program);
    EXPECT_TRUE(run.program.windows.Open.empty());
}

TEST(Windows, TheLastModalOneTakesTheInput) {
    Opened run;
    EXPECT_EQ(modWindows::TopModal(run.program), nullptr);
    const Window& first = run.Open("first", Modality::Modal);
    Window& second = run.Open("second", Modality::Modal);
    run.Open("beside");
    EXPECT_EQ(modWindows::TopModal(run.program), &second);
    modWindows::Close(run.program, second);
    EXPECT_EQ(modWindows::TopModal(run.program), &first);
    EXPECT_NE(modWindows::Find(run.program, "beside"), nullptr);
}

using Noticed = std::vector<std::string>;

TEST(Windows, AreLoadedOnceTheirLoadingHasEnded) {
    class Loading : public Window {
    public:
        [[nodiscard]] std::string_view Name() const override { return "loading"; }
        [[nodiscard]] Modality Mode() const override { return Modality::Modal; }
        void Form_Load(Program&) override { EXPECT_FALSE(Loaded); }
    };
    Opened run;
    EXPECT_TRUE(modWindows::Show(run.program, std::make_unique<Loading>()).Loaded);
}

TEST(Windows, CloseByEscapeUnlessTheySayOtherwise) {
    Opened run;
    Window& window = run.Open("a");
    window.Form_Cancel(run.program);
    EXPECT_TRUE(window.Closing);
    EXPECT_EQ(run.Notes(), (Noticed{"load a", "unload a"}));
}

TEST(Windows, ThatStayOpenFollowAtTheEndOfAnEvent) {
    Opened run;
    run.Open("a");
    Window& closed = run.Open("b");
    run.Open("c");
    modWindows::Close(run.program, closed);
    static_cast<void>(run.Notes());
    const std::vector<std::unique_ptr<Window>> swept = modWindows::Sweep(run.program);
    ASSERT_EQ(swept.size(), 1U);
    EXPECT_EQ(swept[0]->Name(), "b");
    EXPECT_EQ(run.Notes(), (Noticed{"follow a", "follow c"}));
}

TEST(Windows, CalledToTheFrontComeBackFromHavingSteppedAside) {
    Opened run;
    Window& window = run.Open("a");
    window.Minimised = true;
    modWindows::BringToFront(window);
    EXPECT_FALSE(window.Minimised);
    EXPECT_EQ(window.FrontCalls, 1);
}

TEST(Windows, OfAProposalAreAskedBeforeItIsLeftAndAllBeforeTheProgramIs) {
    Opened run;
    run.Open("a").OfProposal = true;
    run.Open("b");
    Noted& last = run.Open("c");
    last.OfProposal = true;
    Noted& closed = run.Open("closed");
    closed.OfProposal = true;
    modWindows::Close(run.program, closed);
    static_cast<void>(run.Notes());
    EXPECT_TRUE(modWindows::MayLeave(run.program, Leaving::Proposal));
    EXPECT_EQ(run.Notes(), (Noticed{"ask c", "ask a"}));
    EXPECT_TRUE(modWindows::MayLeave(run.program, Leaving::Run));
    EXPECT_EQ(run.Notes(), (Noticed{"ask c", "ask b", "ask a"}));
    last.Leaves = false;
    EXPECT_FALSE(modWindows::MayLeave(run.program, Leaving::Run));
    EXPECT_EQ(run.Notes(), Noticed{"ask c"}) << "one that stays is enough";
}

TEST(Windows, OfAProposalLeaveWithIt) {
    Opened run;
    run.Open("a").OfProposal = true;
    run.Open("b");
    run.Open("c").OfProposal = true;
    static_cast<void>(run.Notes());
    modWindows::CloseProposalWindows(run.program);
    EXPECT_EQ(run.Notes(), (Noticed{"unload c", "unload a"}));
    EXPECT_NE(modWindows::Find(run.program, "b"), nullptr);
}

TEST(Windows, ThatStandOpenKeepTheirUnsavedWork) {
    Opened run;
    run.Open("a");
    modWindows::Close(run.program, run.Open("b"));
    static_cast<void>(run.Notes());
    modWindows::KeepUnsaved(run.program);
    EXPECT_EQ(run.Notes(), Noticed{"keep a"});
}

} // namespace
