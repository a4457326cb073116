// The procedures of the tools, as the tool table names them. X and Y are DRAW pixels.
#pragma once

namespace kiso {

void nothing(float X, float Y);
void no_tick();

// dots.cpp
void pset_press(float X, float Y);
void pset_dot(float X, float Y);
void freeline_press(float X, float Y);
void freeline_drag(float X, float Y);
void block_dot_press(float X, float Y);
void block_dot(float X, float Y);

// look.cpp: the tools that change nothing
void spoit(float X, float Y);
void zoom_press(float X, float Y);
void zoom_release(float X, float Y);

}  // namespace kiso
