// Colour: the colour table, explicit RGB values 0x01BBGGRR, and selection of the pen colour.
#pragma once

namespace zb {

void setclr(int iclr);                           // pen colour: index or explicit RGB
void qqgrgb(int iclr, int& r, int& g, int& b);   // bytes 0..255 of a colour value
int qqgidx(int r, int g, int b);                 // nearest table index

}  // namespace zb
