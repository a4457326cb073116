// The door through which every event enters: nothing that is thrown gets out of it.
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "platform/error.h"
#include "platform/forms/runtime.h"

namespace {

using namespace forms;

struct OneWindow : Window {
  OneWindow() : Window("W", Border::fixed, Scale::pixels, [] {}) {}
};
OneWindow W;

// A display that can not show what has changed.
struct Broken : Desktop {
  struct BrokenPeer : Peer {
    void update(uint32_t /*changes*/) override { throw std::bad_alloc(); }
  };
  std::unique_ptr<Peer> show(Window& /*window*/) override { return std::make_unique<BrokenPeer>(); }
  using Desktop::show;
  void error_box(int number, const std::string& what) override {
    told = number;
    text = what;
    if (box_fails) throw std::bad_alloc();
  }
  int told = 0;
  std::string text;
  bool box_fails = false;
};

struct Enter : testing::Test {
  Enter() { use_desktop(&desk); }
  ~Enter() override {
    reset_runtime();
    use_desktop(nullptr);
  }
  Broken desk;
};

TEST_F(Enter, WhatFailsWhileChangesAreShownIsAnErrorOfTheEvent) {
  EXPECT_FALSE(enter([] {
    W.Show();
    W.Caption("new");
  }));
  EXPECT_EQ(desk.told, 7);
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(exit_status(), 1);
}

TEST_F(Enter, ErrorsOfTheLibraryAreTold) {
  EXPECT_FALSE(enter([] { throw std::out_of_range("substr"); }));
  EXPECT_EQ(desk.told, 51);
  EXPECT_NE(desk.text.find("substr"), std::string::npos);
  EXPECT_EQ(fatal_error(), 51);
}

TEST_F(Enter, AnythingElseToo) {
  EXPECT_FALSE(enter([] { throw 1; }));
  EXPECT_EQ(desk.told, 51);
}

TEST_F(Enter, ABoxThatCanNotBeShownEndsTheProgramAllTheSame) {
  desk.box_fails = true;
  EXPECT_FALSE(enter([] { throw RuntimeError(9); }));
  EXPECT_TRUE(has_ended());
  EXPECT_EQ(exit_status(), 1);
}

TEST_F(Enter, TheEndHasAStatus) {
  EXPECT_FALSE(enter([] { End(1); }));
  EXPECT_EQ(desk.told, 0);
  EXPECT_EQ(exit_status(), 1);
  EXPECT_EQ(fatal_error(), 0);
  reset_runtime();
  EXPECT_FALSE(enter([] { End(); }));
  EXPECT_EQ(exit_status(), 0);
}

}  // namespace
