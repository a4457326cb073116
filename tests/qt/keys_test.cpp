#include <QComboBox>
#include <QLineEdit>
#include <QWindow>

#include "platform/qt/keys.h"

#include "qt/display.h"

namespace kiso_test {

namespace {

int number(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, quint32 scan_code = 0, quint32 keysym = 0) {
  return qt::key_number(QKeyEvent(QEvent::KeyPress, key, modifiers, scan_code, keysym, 0));
}

int character(int key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return qt::key_character(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
}

class Keys : public Display {};

TEST_F(Keys, LettersDigitsAndNamedKeysHaveThePlatformsNumbers) {
  EXPECT_EQ(number(Qt::Key_A), 65);
  EXPECT_EQ(number(Qt::Key_Z), 90);
  EXPECT_EQ(number(Qt::Key_0), 48);
  EXPECT_EQ(number(Qt::Key_9), 57);
  EXPECT_EQ(number(Qt::Key_PageUp), 33);
  EXPECT_EQ(number(Qt::Key_PageDown), 34);
  EXPECT_EQ(number(Qt::Key_Left), 37);
  EXPECT_EQ(number(Qt::Key_Up), 38);
  EXPECT_EQ(number(Qt::Key_Right), 39);
  EXPECT_EQ(number(Qt::Key_Down), 40);
  EXPECT_EQ(number(Qt::Key_Space), 32);
  EXPECT_EQ(number(Qt::Key_Return), 13);
  EXPECT_EQ(number(Qt::Key_Escape), 27);
  EXPECT_EQ(number(Qt::Key_Tab), 9);
  EXPECT_EQ(number(Qt::Key_Backspace), 8);
  EXPECT_EQ(number(Qt::Key_Delete), 46);
  EXPECT_EQ(number(Qt::Key_Insert), 45);
  EXPECT_EQ(number(Qt::Key_Home), 36);
  EXPECT_EQ(number(Qt::Key_End), 35);
  EXPECT_EQ(number(Qt::Key_F1), 112);
  EXPECT_EQ(number(Qt::Key_F12), 123);
  EXPECT_EQ(number(Qt::Key_MediaPlay), 0);
}

// X11 marks the keys of the keypad, Wayland does not.
TEST_F(Keys, KeypadHasItsNumbersWithNumLockOnAndOff) {
  struct Digit {
    quint32 keysym;
    int key;
  };
  constexpr Digit OFF[] = {{0xFF9E, Qt::Key_Insert},   {0xFF9C, Qt::Key_End},  {0xFF99, Qt::Key_Down},
                           {0xFF9B, Qt::Key_PageDown}, {0xFF96, Qt::Key_Left}, {0xFF9D, Qt::Key_Clear},
                           {0xFF98, Qt::Key_Right},    {0xFF95, Qt::Key_Home}, {0xFF97, Qt::Key_Up},
                           {0xFF9A, Qt::Key_PageUp}};
  for (const Qt::KeyboardModifiers mark : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::KeypadModifier)}) {
    for (int n = 0; n < 10; ++n) {
      EXPECT_EQ(number(Qt::Key_0 + n, mark, 0, 0xFFB0 + static_cast<quint32>(n)), 96 + n);
      EXPECT_EQ(number(OFF[n].key, mark, 0, OFF[n].keysym), 96 + n);
      EXPECT_EQ(number(OFF[n].key, mark | Qt::ShiftModifier, 0, OFF[n].keysym), 96 + n);
    }
    EXPECT_EQ(number(Qt::Key_Enter, mark, 0, 0xFF8D), 13);
    EXPECT_EQ(number(Qt::Key_Asterisk, mark, 0, 0xFFAA), 106);
    EXPECT_EQ(number(Qt::Key_Plus, mark, 0, 0xFFAB), 107);
    EXPECT_EQ(number(Qt::Key_Minus, mark, 0, 0xFFAD), 109);
    EXPECT_EQ(number(Qt::Key_Period, mark, 0, 0xFFAE), 110);
    EXPECT_EQ(number(Qt::Key_Delete, mark, 0, 0xFF9F), 110);
    EXPECT_EQ(number(Qt::Key_Slash, mark, 0, 0xFFAF), 111);
  }
}

TEST_F(Keys, DigitWithShiftKeepsItsNumber) {
  EXPECT_EQ(number(Qt::Key_Exclam, Qt::ShiftModifier, 10), 49);
  EXPECT_EQ(number(Qt::Key_ParenLeft, Qt::ShiftModifier, 18), 57);
  EXPECT_EQ(number(Qt::Key_ParenRight, Qt::ShiftModifier, 19), 48);
}

TEST_F(Keys, CharactersAreThoseTyped) {
  EXPECT_EQ(character(Qt::Key_A, "a"), 97);
  EXPECT_EQ(character(Qt::Key_A, "A", Qt::ShiftModifier), 65);
  EXPECT_EQ(character(Qt::Key_Space, " "), 32);
  EXPECT_EQ(character(Qt::Key_Return, "\r"), 13);
  EXPECT_EQ(character(Qt::Key_Escape, "\x1b"), 27);
  EXPECT_EQ(character(Qt::Key_8, "8"), 56);
  EXPECT_EQ(character(Qt::Key_Left, ""), 0);
  EXPECT_EQ(character(Qt::Key_Delete, "\x7f"), 0);
  EXPECT_EQ(character(Qt::Key_unknown, "あ"), 0);
}

class KeysOnDisplay : public Display {
 protected:
  KeysOnDisplay() {
    logic([] { P.Show(); });
    settle();
    taken();
  }
};

TEST_F(KeysOnDisplay, KeyGoesDownThenGivesItsCharacterThenGoesUp) {
  key(QEvent::KeyPress, widget(P.DRAW), Qt::Key_B, "B", Qt::ShiftModifier);
  key(QEvent::KeyRelease, widget(P.DRAW), Qt::Key_B, "B", Qt::ShiftModifier);
  EXPECT_EQ(taken(), (Said{"key 66 1", "character 66", "key up 66 1"}));
}

TEST_F(KeysOnDisplay, HeldKeyRepeatsItsPressAlone) {
  const auto keypad_0 = [](QEvent::Type type, bool repeated) {
    QKeyEvent event(type, Qt::Key_Insert, Qt::KeypadModifier, 90, 0xFF9E, 0, "", repeated);
    QCoreApplication::sendEvent(widget(P.DRAW), &event);
  };
  keypad_0(QEvent::KeyPress, false);
  keypad_0(QEvent::KeyRelease, true);
  keypad_0(QEvent::KeyPress, true);
  keypad_0(QEvent::KeyRelease, false);
  EXPECT_EQ(taken(), (Said{"key 96 0", "key 96 0", "key up 96 0"}));
}

TEST_F(KeysOnDisplay, TabIsAKeyOfThePictureLikeAnyOther) {
  key(QEvent::KeyPress, widget(P.DRAW), Qt::Key_Tab, "\t");
  EXPECT_EQ(taken(), (Said{"key 9 0", "character 9"}));
  EXPECT_TRUE(widget(P.DRAW)->hasFocus());
}

TEST_F(KeysOnDisplay, PictureThatIsDisabledSwallowsItsKeys) {
  logic([] { P.DRAW.Enabled(false); });
  key(QEvent::KeyPress, widget(P.DRAW), Qt::Key_A, "a");
  EXPECT_EQ(taken(), Said{});
}

TEST_F(KeysOnDisplay, InputMethodStaysAwayFromThePicture) {
  EXPECT_FALSE(widget(P.DRAW)->testAttribute(Qt::WA_InputMethodEnabled));
  EXPECT_FALSE(widget(P.DMY)->testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(KeysOnDisplay, PictureHasTheKeyboardFromTheStart) { EXPECT_TRUE(widget(P.DRAW)->hasFocus()); }

TEST_F(KeysOnDisplay, KeyOfAPaletteGoesToWhatHadTheKeyboardLast) {
  logic([] { TOOL.Show(&P); });
  settle();
  taken();
  key(QEvent::KeyPress, qt::widget_of(TOOL), Qt::Key_A, "a");
  EXPECT_EQ(taken(), (Said{"key 65 0", "character 97"}));
  logic([] { P.DMY.SetFocus(); });
  key(QEvent::KeyPress, qt::widget_of(TOOL), Qt::Key_A, "a");
  EXPECT_EQ(taken(), (Said{"DMY character 97"}));
}

TEST_F(KeysOnDisplay, PaletteWithoutTextFieldsNeverTakesTheKeyboard) {
  logic([] { TOOL.Show(&P); });
  EXPECT_TRUE(qt::widget_of(TOOL)->windowFlags() & Qt::WindowDoesNotAcceptFocus);
  EXPECT_EQ(widget(TOOL.UNDO)->focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(widget(P.X_SC)->focusPolicy(), Qt::NoFocus);
}

// A palette with a field that is typed into, as the colour window has.
void design_names();
struct NamesWindow : Window {
  NamesWindow() : Window("NAMES", Border::tool, Scale::pixels, design_names) {}
  ComboBox Combo1{*this, "Combo1"};
} NAMES;
void design_names() {
  NAMES.design(9000, 3000, 100, 60);
  NAMES.Combo1.design(0, 0, 90, 22);
}

TEST_F(KeysOnDisplay, PaletteWithATextFieldGivesItTheKeyboardOnlyWhenItIsAskedTo) {
  logic([] { NAMES.Show(&P); });
  settle();
  QWidget* palette = qt::widget_of(NAMES);
  EXPECT_FALSE(palette->windowFlags() & Qt::WindowDoesNotAcceptFocus);
  palette->activateWindow();
  settle();
  taken();
  const auto type = [&](int key_, const char* text) {
    QWidget* to = palette->focusWidget() ? palette->focusWidget() : palette;
    key(QEvent::KeyPress, to, key_, text);
  };
  type(Qt::Key_A, "a");
  EXPECT_EQ(taken(), (Said{"key 65 0", "character 97"}));
  widget(NAMES.Combo1)->setFocus(Qt::MouseFocusReason);
  type(Qt::Key_B, "b");
  type(Qt::Key_Return, "\r");
  EXPECT_EQ(taken(), Said{});
  EXPECT_EQ(NAMES.Combo1.Text(), "b");
  qt::widget_of(P)->activateWindow();
  settle();
  palette->activateWindow();
  settle();
  type(Qt::Key_C, "c");
  EXPECT_EQ(taken(), (Said{"key 67 0", "character 99"}));
}

struct TypedNames : KeysOnDisplay {
  TypedNames() {
    logic([] {
      NAMES.Show(&P);
      TOOL.Show(&P);
      for (const char* name : {"A", "B", "C"}) NAMES.Combo1.AddItem(name);
      NAMES.Combo1.ListIndex(0);
    });
    settle();
    qt::widget_of(NAMES)->activateWindow();
    widget(NAMES.Combo1)->setFocus(Qt::MouseFocusReason);
    settle();
    taken();
  }
  static bool picture_has_keyboard() {
    settle();
    return widget(P.DRAW)->hasFocus() && qt::widget_of(NAMES)->focusWidget() != widget(NAMES.Combo1);
  }
  // As the display brings it, to the window.
  static void press_in(const Window& window, QPointF at) {
    QMouseEvent event(QEvent::MouseButtonPress, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(qt::widget_of(window)->windowHandle(), &event);
  }
};

TEST_F(TypedNames, AChoiceGivesTheKeyboardBackToThePicture) {
  EXPECT_FALSE(picture_has_keyboard());
  emit as<QComboBox>(NAMES.Combo1)->activated(1);
  EXPECT_TRUE(picture_has_keyboard());
  EXPECT_EQ(NAMES.Combo1.ListIndex(), 1);
}

TEST_F(TypedNames, EnterGivesTheKeyboardBackToThePicture) {
  NAMES.Combo1.KeyPress = [](int c) { say("KeyPress " + std::to_string(c)); };
  as<QComboBox>(NAMES.Combo1)->lineEdit()->selectAll();
  key(QEvent::KeyPress, widget(NAMES.Combo1), Qt::Key_C, "C");
  EXPECT_FALSE(picture_has_keyboard());
  key(QEvent::KeyPress, widget(NAMES.Combo1), Qt::Key_Return, "\r");
  EXPECT_TRUE(picture_has_keyboard());
  EXPECT_EQ(taken(), (Said{"KeyPress 67", "KeyPress 13"}));
  EXPECT_EQ(NAMES.Combo1.ListIndex(), 0) << "the name of another item is no choice of that item";
}

TEST_F(TypedNames, ArrowsGoThroughTheListAndKeepTheKeyboard) {
  for (int i = 0; i < 3; ++i) key(QEvent::KeyPress, widget(NAMES.Combo1), Qt::Key_Down);
  EXPECT_EQ(NAMES.Combo1.Text(), "C");
  key(QEvent::KeyPress, widget(NAMES.Combo1), Qt::Key_Up);
  EXPECT_EQ(NAMES.Combo1.Text(), "B");
  EXPECT_FALSE(picture_has_keyboard());
}

TEST_F(TypedNames, APressOnAnotherPaletteGivesTheKeyboardBackToThePicture) {
  press_in(TOOL, {4, 4});
  EXPECT_TRUE(picture_has_keyboard());
}

TEST_F(TypedNames, APressBesideTheFieldGivesTheKeyboardBackToThePicture) {
  press_in(NAMES, {50, 50});
  EXPECT_TRUE(picture_has_keyboard());
}

TEST_F(TypedNames, APressOnTheFieldKeepsTheKeyboard) {
  press_in(NAMES, {20, 10});
  EXPECT_FALSE(picture_has_keyboard());
}

}  // namespace
}  // namespace kiso_test
