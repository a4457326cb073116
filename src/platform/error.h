// The numbered run-time errors of the platform: one exception type, thrown by the runtime and by the operations on
// pictures, text and files.
#pragma once

#include <stdexcept>
#include <string>

struct RuntimeError : std::runtime_error {
  explicit RuntimeError(int number_);
  RuntimeError(int number_, const std::string& text) : std::runtime_error(text), number(number_) {}
  int number;
};

// The platform's text of an error, in Japanese. A number that the platform does not know has a general text.
inline const char* error_text(int number) {
  switch (number) {
    case 5: return "プロシージャの呼び出し、または引数が不正です。";
    case 6: return "オーバーフローしました。";
    case 7: return "メモリが不足しています。";
    case 9: return "インデックスが有効範囲にありません。";
    case 11: return "0 で除算しました。";
    case 51: return "内部エラーです。";
    case 52: return "ファイル名または番号が不正です。";
    case 53: return "ファイルが見つかりません。";
    case 54: return "ファイル モードが不正です。";
    case 55: return "ファイルは既に開かれています。";
    case 57: return "デバイス I/O エラーです。";
    case 58: return "既に同名のファイルが存在しています。";
    case 61: return "ディスクの空き容量が不足しています。";
    case 62: return "ファイルにこれ以上データがありません。";
    case 67: return "ファイルが多すぎます。";
    case 70: return "書き込みできません。";
    case 74: return "ディスク間で名前を変更することはできません。";
    case 75: return "パス名が無効です。";
    case 76: return "パスが見つかりません。";
    case 364: return "オブジェクトはアンロードされました。";
    case 380: return "プロパティの値が不正です。";
    case 460: return "クリップボードの形式が不正です。";
    case 481: return "ピクチャが不正です。";
    case 482: return "プリンタ エラーです。";
    case 32755: return "[キャンセル] が選択されました。";
    default: return "アプリケーション定義またはオブジェクト定義のエラーです。";
  }
}

inline RuntimeError::RuntimeError(int number_) : RuntimeError(number_, error_text(number_)) {}

// Runs f and goes on after a run-time error in it: its number, 0 if there was none.
template <class F>
int ignore_errors(F f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number;
  }
  return 0;
}
