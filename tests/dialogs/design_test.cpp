// What a person sees of the two windows: words, places, and nothing cut off in any font.
#include "dialogs_test.h"
#include "platform/forms/layout.h"

namespace kiso {
namespace {

// Letters of another size than the stage's.
struct LargeLetters : stage::StageDesktop {
  int factor = 1;
  void text_size(const std::string& text, const Font& font, int wrap, int& width, int& height) override {
    StageDesktop::text_size(text, font, wrap / factor, width, height);
    width *= factor;
    height *= factor;
  }
};

struct Design : ::testing::Test {
  Design() {
    stage::start();
    use_desktop(&letters);
  }
  ~Design() override {
    reset_runtime();
    use_desktop(nullptr);
  }
  static void open() {
    enter([] { CMD_WIN.SYS_B(2).Click.fire(2); });
    ASSERT_TRUE(SET_WIN.Visible());
  }
  LargeLetters letters;
};

// The words, page by page as they stand, each with what holds it.
const struct Word {
  Control& control;
  Control* in;
  const char* caption;
} WORDS[] = {
    {SET_WIN.Command1, nullptr, "動作環境"},
    {SET_WIN.Command2, nullptr, "ﾗﾝﾁｬｰ設定"},
    {SET_WIN.Command3, nullptr, "起動設定"},
    {SET_WIN.Command4, nullptr, "自動保存"},
    {SET_WIN.Command6, nullptr, "Add_In情報"},
    {SET_WIN.Command8, nullptr, "動作設定2"},
    {SET_WIN.OK, nullptr, "OK"},
    {SET_WIN.CANCEL, nullptr, "Cancel"},
    {SET_WIN.Frame1, &SET_WIN.Picture1(0), "View Window DisplayMode"},
    {SET_WIN.Option1, &SET_WIN.Frame1, "全面書き換え"},
    {SET_WIN.Option2, &SET_WIN.Frame1, "Edit領域分のみ書き換え"},
    {SET_WIN.Frame2, &SET_WIN.Picture1(0), "動作環境"},
    {SET_WIN.Option3, &SET_WIN.Frame2, "Normal"},
    {SET_WIN.Option4, &SET_WIN.Frame2, "StretchBltとImageに問題のある機種対応"},
    {SET_WIN.Label1, &SET_WIN.Frame2, "ServicePakやDirectDrawを入れると直る場合があります"},
    {SET_WIN.RUN_BASE(0), &SET_WIN.Picture1(1), "ランチ１の設定"},
    {SET_WIN.RUN_BASE(1), &SET_WIN.Picture1(1), "ランチ２の設定"},
    {SET_WIN.Check5(0), &SET_WIN.RUN_BASE(0), "ランチしたアプリが終了したら自動的にKisoを起動する"},
    {SET_WIN.Check5(1), &SET_WIN.RUN_BASE(1), "ランチしたアプリが終了したら自動的にKisoを起動する"},
    {SET_WIN.LAN_SET(0), &SET_WIN.RUN_BASE(0), "起動するファイルの指定"},
    {SET_WIN.LAN_SET(1), &SET_WIN.RUN_BASE(1), "起動するファイルの指定"},
    {SET_WIN.LAN_NAME(0), &SET_WIN.RUN_BASE(0), ""},
    {SET_WIN.LAN_NAME(1), &SET_WIN.RUN_BASE(1), ""},
    {SET_WIN.Frame4, &SET_WIN.Picture1(2), "次回起動時に編集していた絵を読み込む"},
    {SET_WIN.Option5(0), &SET_WIN.Frame4, "読み込まない"},
    {SET_WIN.Option5(1), &SET_WIN.Frame4, "自動的に読み込む"},
    {SET_WIN.Option5(2), &SET_WIN.Frame4, "読み込むかどうか聞いてくる"},
    {SET_WIN.Check1, &SET_WIN.Picture1(2), "次回起動時にWindow位置を再現する"},
    {SET_WIN.Frame6, &SET_WIN.Picture1(3), "保存間隔の指定"},
    {SET_WIN.Option8, &SET_WIN.Frame6, "保存しない"},
    {SET_WIN.Option9, &SET_WIN.Frame6, "5分間隔"},
    {SET_WIN.Option10, &SET_WIN.Frame6, "10分間隔"},
    {SET_WIN.Option11, &SET_WIN.Frame6, "15分間隔"},
    {SET_WIN.Option12, &SET_WIN.Frame6, "20分間隔"},
    {SET_WIN.Option13, &SET_WIN.Frame6, "25分間隔"},
    {SET_WIN.Option14, &SET_WIN.Frame6, "30分間隔"},
    {SET_WIN.Frame5, &SET_WIN.Picture1(3), "保存先の指定"},
    {SET_WIN.Option6, &SET_WIN.Frame5, "KisoのディレクトリーにAUTOSAVE.BMPとして保存する"},
    {SET_WIN.Option7, &SET_WIN.Frame5, "編集中のファイルへ書き込む"},
    {SET_WIN.Label3, &SET_WIN.Picture1(3),
     "本機能ではKisoの複数起動を想定しておりませんのでAUTOSAVE.BMPを指定する場合には注意してください。"},
    {SET_WIN.Frame7, &SET_WIN.Picture1(4), "現在の設定"},
    {SET_WIN.DISP_MODE(0), &SET_WIN.Frame7, "スキャナー"},
    {SET_WIN.DISP_MODE(1), &SET_WIN.Frame7, "ファイル読み込み"},
    {SET_WIN.DISP_MODE(2), &SET_WIN.Frame7, "ファイル保存"},
    {SET_WIN.DISP_MODE(3), &SET_WIN.Frame7, "Special Options"},
    {SET_WIN.Frame8, &SET_WIN.Picture1(4), "Add_Inリスト"},
    {SET_WIN.Command7, &SET_WIN.Frame8, "削除"},
    {SET_WIN.Command5, &SET_WIN.Frame8, "Add_Inの追加"},
    {SET_WIN.Frame10, &SET_WIN.Picture1(5), "Line処理の設定"},
    {SET_WIN.Option15, &SET_WIN.Frame10, "従来のまま"},
    {SET_WIN.Option16, &SET_WIN.Frame10, "連続線設定"},
    {SET_WIN.Label4, &SET_WIN.Frame10, "次回Lineを指定した時から有効になります。"},
    {SET_WIN.Frame9, &SET_WIN.Picture1(5), "右クリック設定"},
    {SET_WIN.Check2, &SET_WIN.Frame9, "右クリックをスポイトにする"},
    {SET_WIN.Check3, &SET_WIN.Frame9, "ViewWindowをDrawWindowで右クリックをしても消さない"},
};

struct Place {
  double left, top, right, bottom;
};
Place place_of(const Control& c) {
  return {c.left_px(), c.top_px(), c.left_px() + c.width_px(), c.top_px() + c.height_px()};
}
bool apart(const Place& a, const Place& b) {
  return a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top;
}
bool is_page(const Control& c) { return c.kind == Kind::picture; }

// Everything stands inside of what holds it, has room for its text, and covers none of its neighbours.
void expect_whole(Window& window) {
  for (Control* c : window.controls()) {
    const Place at = place_of(*c);
    const double width = c->container ? c->container->width_px() : window.inside_w();
    const double height = c->container ? c->container->height_px() : window.inside_h();
    EXPECT_GT(at.right - at.left, 0) << c->full_name();
    EXPECT_GT(at.bottom - at.top, 0) << c->full_name();
    EXPECT_TRUE(at.left >= 0 && at.top >= 0 && at.right <= width && at.bottom <= height) << c->full_name();
    for (Control* other : window.controls()) {
      if (other == c || other->container != c->container || (is_page(*c) && is_page(*other))) continue;
      EXPECT_TRUE(apart(at, place_of(*other))) << c->full_name() << " on " << other->full_name();
    }
    if (c->kind == Kind::list_box || c->kind == Kind::picture || c->kind == Kind::shape) continue;
    int w = 0, h = 0;
    const int wrap = c->kind == Kind::label ? static_cast<int>(c->width_px()) : 0;
    desktop().text_size(caption_of(*c), Font{}, wrap, w, h);
    EXPECT_LE(w, at.right - at.left) << c->full_name();
    EXPECT_LE(h, at.bottom - at.top) << c->full_name();
  }
}

TEST_F(Design, EveryControlHasItsWordsAndItsPage) {
  open();
  size_t with_words = 0;
  for (const Control* c : SET_WIN.controls()) {
    with_words += c->kind != Kind::picture && c->kind != Kind::list_box && c->kind != Kind::shape ? 1 : 0;
  }
  EXPECT_EQ(std::size(WORDS), with_words);
  for (const Word& word : WORDS) {
    EXPECT_EQ(caption_of(word.control), word.caption) << word.control.full_name();
    EXPECT_EQ(word.control.container, word.in) << word.control.full_name();
  }
  EXPECT_EQ(SET_WIN.List1.container, &SET_WIN.Frame7);
  EXPECT_EQ(SET_WIN.List2.container, &SET_WIN.Frame8);
}

TEST_F(Design, NothingIsCutOffInAnyFont) {
  for (const int factor : {1, 2, 3}) {
    letters.factor = factor;
    open();
    expect_whole(SET_WIN);
    enter([] { SET_WIN.Unload(); });
  }
}

TEST_F(Design, PagesLieOnTopOfOneAnother) {
  open();
  for (int i = 1; i < 6; ++i) {
    EXPECT_DOUBLE_EQ(SET_WIN.Picture1(i).Left(), SET_WIN.Picture1(0).Left());
    EXPECT_DOUBLE_EQ(SET_WIN.Picture1(i).Top(), SET_WIN.Picture1(0).Top());
    EXPECT_DOUBLE_EQ(SET_WIN.Picture1(i).Width(), SET_WIN.Picture1(0).Width());
    EXPECT_DOUBLE_EQ(SET_WIN.Picture1(i).Height(), SET_WIN.Picture1(0).Height());
  }
}

TEST_F(Design, AButtonBringsItsPageToTheFrontAndIsMarked) {
  open();
  CommandButton* const buttons[] = {&SET_WIN.Command1, &SET_WIN.Command2, &SET_WIN.Command3,
                                    &SET_WIN.Command4, &SET_WIN.Command6, &SET_WIN.Command8};
  for (const int page : {5, 0, 3, 1, 4, 2}) {
    click(*buttons[page]);
    for (int other = 0; other < 6; ++other) {
      EXPECT_EQ(SET_WIN.Picture1(other).order() < SET_WIN.Picture1(page).order(), other != page);
    }
    EXPECT_DOUBLE_EQ(SET_WIN.Shape1.Left(), buttons[page]->Left());
    EXPECT_DOUBLE_EQ(SET_WIN.Shape1.Width(), buttons[page]->Width());
  }
}

// A page behind another one is no hidden one: what is done to its controls by name arrives.
TEST_F(Design, ControlsOfPagesBehindAreReachedByName) {
  open();
  EXPECT_TRUE(reachable(SET_WIN.Option9));
  EXPECT_TRUE(reachable(SET_WIN.Command7));
  EXPECT_TRUE(reachable(SET_WIN.Check3));
  tick(SET_WIN.Check2);
  EXPECT_FALSE(reachable(SET_WIN.Check3));
}

TEST_F(Design, PageButtonsAreOneRowOfEqualWidth) {
  open();
  CommandButton* const buttons[] = {&SET_WIN.Command1, &SET_WIN.Command2, &SET_WIN.Command3,
                                    &SET_WIN.Command4, &SET_WIN.Command6, &SET_WIN.Command8};
  for (size_t i = 1; i < std::size(buttons); ++i) {
    EXPECT_GT(buttons[i]->Left(), buttons[i - 1]->Left());
    EXPECT_DOUBLE_EQ(buttons[i]->Top(), buttons[0]->Top());
    EXPECT_DOUBLE_EQ(buttons[i]->Width(), buttons[0]->Width());
  }
}

TEST_F(Design, EnterIsOkAndEscapeIsCancel) {
  open();
  for (const Control* c : SET_WIN.controls()) {
    if (c->kind != Kind::button) continue;
    const auto& button = static_cast<const CommandButton&>(*c);
    EXPECT_EQ(button.is_default, c == &SET_WIN.OK) << c->full_name();
    EXPECT_EQ(button.is_cancel, c == &SET_WIN.CANCEL) << c->full_name();
  }
}

}  // namespace
}  // namespace kiso
