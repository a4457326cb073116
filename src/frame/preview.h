// The preview of a stroke. While it is on, PREVIEW_ON is 1 and DRAW's AutoRedraw is off: what is drawn on DRAW reaches
// the screen alone, where M_REDRAW paints it again, and DRAW's image stays what it was before the stroke.
#pragma once

namespace kiso {

void begin_preview();  // M_REDRAW takes what DRAW shows
void end_preview();    // DRAW takes what M_REDRAW holds: the stroke is on DRAW's image
// DRAW's image shows again, the stroke is gone. False if no preview was on.
bool drop_preview();
// The same, but PREVIEW_ON keeps its 1, until the next end or drop.
void cover_preview();
// True from the beginning until the end, the drop or the cover.
bool preview_shows();

}  // namespace kiso
