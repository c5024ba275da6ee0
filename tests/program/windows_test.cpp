#include "program/windows.h"
#include "support/settled.h"

#include <gtest/gtest.h>

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
    void Form_Cancel(Program& program) override { modWindows::Close(program, *this); }

private:
    std::string name_;
    Modality mode_;
    std::vector<std::string>& notes_;
};

struct Opened : Settled {
    Window& Open(const std::string& name, Modality mode = Modality::Modeless) {
        return modWindows::Show(program, std::make_unique<Noted>(name, mode, notes));
    }
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

} // namespace
