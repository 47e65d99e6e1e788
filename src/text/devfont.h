// Where a character leaves the stroke alphabets for a font of the output device (PostScript,
// X11, bitmap fonts). Until those fonts exist, ifnttp stays 0 and these hooks keep every
// character with the stroke alphabets.
#pragma once

namespace zb {

// True if the character in alphabet ialf is drawn with the device font.
bool device_font_applies(int ialf);
// Draws (unless measuring) character code ich at position idx with the device font and
// returns the width the pen moves by, the gap excluded; may set xcgap.
float device_font_char(int ich, int idx);
// Code exchanges of the device font's encoding (Greek in the Symbol font).
int device_font_code(int ich, int ialf);
// Font changes when the text changes its alphabet (Greek or italic device fonts).
void device_font_alphabet(int ialf);

}  // namespace zb
