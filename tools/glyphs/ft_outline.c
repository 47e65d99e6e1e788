/* Prints the outlines of characters of a font file in font units, one command a line:
 * "G code", then per contour "M x y", "L x y", "Q cx cy x y" or "C c1x c1y c2x c2y x y", and "E" at the
 * glyph's end. Used by the glyph generator only; the library itself does not link FreeType. */
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include <stdio.h>
#include <stdlib.h>

static int move_to(const FT_Vector* p, void* u) { (void)u; printf("M %ld %ld\n", p->x, p->y); return 0; }
static int line_to(const FT_Vector* p, void* u) { (void)u; printf("L %ld %ld\n", p->x, p->y); return 0; }
static int conic_to(const FT_Vector* c, const FT_Vector* p, void* u) {
  (void)u; printf("Q %ld %ld %ld %ld\n", c->x, c->y, p->x, p->y); return 0;
}
static int cubic_to(const FT_Vector* c1, const FT_Vector* c2, const FT_Vector* p, void* u) {
  (void)u; printf("C %ld %ld %ld %ld %ld %ld\n", c1->x, c1->y, c2->x, c2->y, p->x, p->y); return 0;
}

int main(int argc, char** argv) {
  if (argc < 3) { fprintf(stderr, "usage: ft_outline font.ttf code...\n"); return 2; }
  FT_Library lib; FT_Face face;
  if (FT_Init_FreeType(&lib) || FT_New_Face(lib, argv[1], 0, &face)) { fprintf(stderr, "cannot open %s\n", argv[1]); return 1; }
  FT_Outline_Funcs fn = {move_to, line_to, conic_to, cubic_to, 0, 0};
  printf("U %d\n", face->units_per_EM);
  for (int k = 2; k < argc; ++k) {
    unsigned long code = strtoul(argv[k], 0, 10);
    printf("G %lu\n", code);
    if (FT_Load_Char(face, code, FT_LOAD_NO_SCALE | FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP) == 0 &&
        face->glyph->format == FT_GLYPH_FORMAT_OUTLINE)
      FT_Outline_Decompose(&face->glyph->outline, &fn, 0);
    printf("E\n");
  }
  FT_Done_Face(face); FT_Done_FreeType(lib);
  return 0;
}
