// The four small windows that hold the numbers of the pixel tools. A bar's number is in force as it moves; there is no
// OK and no Cancel. Their procedures stand in src/colour.
#pragma once

#include "frame/usr_def.h"

namespace kiso {

struct FuzzyWin : Window {  // how much a colour may differ
  FuzzyWin();

  Frame Frame1{*this, "Frame1"};
  ScrollBar H_BAR{*this, "H_BAR", Lie::horizontal}, S_BAR{*this, "S_BAR", Lie::horizontal},
      V_BAR{*this, "V_BAR", Lie::horizontal};
  Label H_VAL{*this, "H_VAL"}, S_VAL{*this, "S_VAL"}, V_VAL{*this, "V_VAL"};
  Label Label1{*this, "Label1"}, Label2{*this, "Label2"}, Label3{*this, "Label3"};  // the letters
  Label Label4{*this, "Label4"}, Label5{*this, "Label5"}, Label6{*this, "Label6"};  // plus or minus
  CommandButton Command3{*this, "Command3"};
};
extern FuzzyWin FUZZY_WIN;

struct SprayWin : Window {  // how fast the sprays fire
  SprayWin();

  Frame Frame1{*this, "Frame1"};
  ScrollBar I_BAR{*this, "I_BAR", Lie::horizontal};
  Label Label1{*this, "Label1"}, Label2{*this, "Label2"};
  CommandButton Command3{*this, "Command3"};
};
extern SprayWin SPRAY_WIN;

struct HsetWin : Window {  // how far a V tool changes brightness
  HsetWin();

  Frame Frame1{*this, "Frame1"};
  ScrollBar H_BAR{*this, "H_BAR", Lie::horizontal};
  Label H_VAL{*this, "H_VAL"};
  Label Label1{*this, "Label1"}, Label2{*this, "Label2"}, Label3{*this, "Label3"};
  CommandButton Command3{*this, "Command3"};
};
extern HsetWin HSET_WIN;

struct DeepWin : Window {  // density balance of the Thru Pen
  DeepWin();

  Frame Frame1{*this, "Frame1"};
  ScrollBar DEEP_BAR{*this, "DEEP_BAR", Lie::horizontal};
  Label Label1{*this, "Label1"}, Label2{*this, "Label2"};
};
extern DeepWin DEEP_WIN;

}  // namespace kiso
