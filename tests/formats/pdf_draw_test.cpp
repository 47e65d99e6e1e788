// What the PDF writer puts into a page: path operators and their number formats, colours
// and their repeats, line attributes, text in the base fonts with its escapes and font
// objects, images, forms, and bookmarks with their outline tree.
#include <cstdio>
#include <functional>

#include "formats/drivers.h"
#include "formats/pdf.h"
#include "formats/pdf_support.h"
#include "frame/page.h"

using namespace zb;

namespace {

constexpr const char* kStart = "0.709 w\n2 J\n2 j\n0 0 0 RG\n0 0 0 rg\n";

class PdfDraw : public zbt::Fixture {
 protected:
  // A plain session; returns page contents with the opening lines of the first page cut.
  std::vector<std::string> pages(const std::function<void()>& draw, bool compress = false,
                                 const std::function<void()>& level0 = {}) {
    metafl("PDF");
    pdfmod(compress ? "ON" : "OFF", "COMP");
    if (level0) level0();
    zorini();
    draw();
    zorfin();
    pdf = zbt::Pdf::parse(zbt::read_file(zg.cplotfl.str()));
    EXPECT_TRUE(pdf.ok()) << (pdf.ok() ? "" : pdf.problems[0]);
    std::vector<std::string> r;
    for (int p : pdf.pages()) r.push_back(pdf.content(p));
    if (!r.empty() && r[0].rfind(kStart, 0) == 0) r[0].erase(0, std::string(kStart).size());
    return r;
  }
  std::string page(const std::function<void()>& draw) { return pages(draw).at(0); }
  zbt::Pdf pdf;
};

std::string printf_f(const char* f, float v) {
  char buf[64];
  std::snprintf(buf, sizeof buf, f, double(v));
  return buf;
}

// Coordinates "%.2f", widths and miter limits "%.3f", joins and caps rounded to integers:
// the same text as the C library's printf gives.
TEST_F(PdfDraw, NumberFormatsFollowPrintf) {
  const float values[] = {0.0f, 0.004999f, 0.005f, 1.005f, 2.675f, 123.456f, -0.001f, 781.865f, 1000000.125f, 0.0625f};
  for (float v : values) {
    const std::string c = page([&] {
      qqpdf2(v, 1.0f, 3);
      qqpdf2(2.0f, v, 2);
      qqpdf2(v, v, 6);
      qqpdf2(v, v, 9);
    });
    EXPECT_EQ(c, printf_f("%.2f", v) + " 1.00 m\n2.00 " + printf_f("%.2f", v) + " l\nS\n" + printf_f("%.3f", v) +
                     " w\n" + printf_f("%.3f", v) + " M\n")
        << v;
  }
  const std::pair<float, int> rounding[] = {{0.4999f, 0}, {1.49f, 1}, {1.5f, 2}, {2.0f, 2}, {1.9999999f, 2}};
  for (auto [v, k] : rounding) {
    EXPECT_EQ(page([&] {
      qqpdf2(v, v, 7);
      qqpdf2(v, v, 8);
    }), std::to_string(k) + " j\n" + std::to_string(k) + " J\n");
  }
}

TEST_F(PdfDraw, PathOperators) {
  const std::string c = page([] {
    qqpdf2(5, 5, 3);   // moves cost nothing until a line follows
    qqpdf2(10, 20, 3);
    qqpdf2(30, 40, 2);
    qqpdf2(50, 60, 2);
    qqpdf2(1, 1, 3);
    qqpdf2(2, 2, 2);
    qqpdf2(0, 0, 5);
    qqpdf2(3, 3, 2);
    qqpdf2(1.5f, 1.5f, 6);
    qqpdf2(0, 0, 999);
  });
  EXPECT_EQ(c,
            "10.00 20.00 m\n30.00 40.00 l\n50.00 60.00 l\nS\n"
            "1.00 1.00 m\n2.00 2.00 l\nh\nf*\n3.00 3.00 l\n"
            "S\n1.500 w\n");
}

// The dispatcher's fill: move, draws, code 5; the next move ends the path with "S".
TEST_F(PdfDraw, FilledPolygonThroughTheFillRoutine) {
  const std::string c = page([] {
    shdpat(16);
    const int nx[3] = {100, 300, 200}, ny[3] = {100, 100, 400};
    areaf(nx, ny, 3);
    xjdraw(0, 0, 3);
  });
  // The outline first, then the area.
  EXPECT_EQ(c, "26.33 26.33 m\n26.33 79.00 l\n105.34 52.67 l\n26.33 26.33 l\nS\n"
               "26.33 26.33 m\n26.33 79.00 l\n105.34 52.67 l\nh\nf*\nS\n");
}

TEST_F(PdfDraw, ColourFormatsAndRepeats) {
  struct Case {
    int r, g, b;
    const char* text;
  };
  const Case cases[] = {
      {128, 0, 255, "0.502 0 1 "},
      {1, 254, 51, "0.004 0.996 0.200 "},
      {255, 255, 255, "1 1 1 "},
      {-5, 300, 0, "0 1 0 "},
  };
  for (const auto& k : cases) {
    EXPECT_EQ(page([&] {
      qqpdf3(k.r, k.g, k.b, 0);
      qqpdf3(k.r, k.g, k.b, 1);
      qqpdf3(k.r, k.g, k.b, 1);   // the same fill colour again: dropped
      qqpdf3(k.r, k.g, k.b, 0);   // stroke colours are always written
    }), std::string(k.text) + "RG\n" + k.text + "rg\n" + k.text + "RG\n");
  }
  // A colour change from the dispatcher: stroke, then fill; the fill of the last colour
  // is not repeated, and a box of a new colour sets the fill only.
  EXPECT_EQ(page([] {
    qqsclr(0x01336699);
    qqsclr(0x01336699);
    dbox(0, 0, 100, 100, 0x01336699);
    dbox(0, 0, 100, 100, 0x01000000);
  }),
            "0.600 0.400 0.200 RG\n0.600 0.400 0.200 rg\n0.600 0.400 0.200 RG\n"
            "0.00 0.00 26.33 26.33 re\nf\n0 0 0 rg\n0.00 0.00 26.33 26.33 re\nf\n");
}

TEST_F(PdfDraw, TextEscapesFontsAndMatrices) {
  const float m0[6] = {1, 0, 0, 1, 100, 200};
  const float m30[6] = {0.866f, 0.5f, -0.5f, 0.866f, 12.345f, 6.789f};
  const std::string c = page([&] {
    qqpdf2(0, 0, 3);
    qqpdf2(10, 10, 2);
    qqpdf5('A', m0, 0, 4, 120);   // ends the stroke first
    qqpdf5('(', m0, 0, 4, 120);
    qqpdf5(')', m0, 0, 4, 120);
    qqpdf5('\\', m0, 0, 4, 120);
    qqpdf5(127, m0, 90, 4, 120);
    qqpdf5(186, m30, 30, 4, 120);
    qqpdf5(187, m0, 0, 4, 120);
    qqpdf5(-3, m0, 0, 4, 120);
    qqpdf5('z', m0, 0, 0, 105);   // another font: a new text object
    qqpdf5('z', m0, 0, 0, 110);   // another size too
    qqsclr(0x010000FF);           // a colour closes the text object
    qqpdf5('b', m0, 0, 0, 110);
    xjdraw(0, 0, 3);              // and so does a path operation
  });
  EXPECT_EQ(c,
            "0.00 0.00 m\n10.00 10.00 l\nS\n"
            "BT\n/F5 12.0 Tf\n1 0 0 1 100.00 200.00 Tm\n(A) Tj\n"
            "1 0 0 1 100.00 200.00 Tm\n(\\50) Tj\n"
            "1 0 0 1 100.00 200.00 Tm\n(\\51) Tj\n"
            "1 0 0 1 100.00 200.00 Tm\n(\\134) Tj\n"
            "0 1 -1 0 100.00 200.00 Tm\n(\\304) Tj\n"
            "0.87 0.50 -0.50 0.87 12.35 6.79 Tm\n(\\277) Tj\n"
            "1 0 0 1 100.00 200.00 Tm\n(\\40) Tj\n"
            "1 0 0 1 100.00 200.00 Tm\n(\\40) Tj\n"
            "ET\nBT\n/F1 10.5 Tf\n1 0 0 1 100.00 200.00 Tm\n(z) Tj\n"
            "ET\nBT\n/F1 11.0 Tf\n1 0 0 1 100.00 200.00 Tm\n(z) Tj\n"
            "ET\n1 0 0 RG\n1 0 0 rg\n"
            "BT\n/F1 11.0 Tf\n1 0 0 1 100.00 200.00 Tm\n(b) Tj\n"
            "ET\n");
}

// Each font gets one object per file; every page lists all fonts written so far.
TEST_F(PdfDraw, FontObjectsAndResources) {
  const float m[6] = {1, 0, 0, 1, 50, 50};
  pages([&] {
    qqpdf5('H', m, 0, 4, 200);
    qqpdf5('T', m, 0, 0, 200);
    newpag();
    qqpdf5('C', m, 0, 18, 200);
    qqpdf5('H', m, 0, 4, 200);
    newpag();
  });
  const auto p = pdf.pages();
  ASSERT_EQ(p.size(), 3u);
  std::map<std::string, int> font;   // base font name -> object
  for (const auto& [k, o] : pdf.objects) {
    if (o.rfind("<< /Type /Font\n", 0) != 0) continue;
    const std::size_t at = o.find("/BaseFont /") + 11;
    const std::string name = o.substr(at, o.find('\n', at) - at);
    EXPECT_EQ(o, "<< /Type /Font\n/Subtype /Type1\n/BaseFont /" + name + "\n/Encoding /WinAnsiEncoding\n>>\nendobj\n");
    EXPECT_EQ(font.count(name), 0u) << name << " twice";
    font[name] = k;
  }
  ASSERT_EQ(font.size(), 3u);
  const std::string f1 = "/F1 " + std::to_string(font["Times-Roman"]) + " 0 R\n";
  const std::string f5 = "/F5 " + std::to_string(font["Helvetica"]) + " 0 R\n";
  const std::string f19 = "/F19 " + std::to_string(font["Courier"]) + " 0 R\n";
  const std::string head = "/Resources << /ProcSet [/PDF /Text]\n/Font <<\n";
  EXPECT_NE(pdf.object(p[0]).find(head + f1 + f5 + ">>\n>>\n"), std::string::npos) << pdf.object(p[0]);
  EXPECT_NE(pdf.object(p[1]).find(head + f1 + f5 + f19 + ">>\n>>\n"), std::string::npos) << pdf.object(p[1]);
  EXPECT_NE(pdf.object(p[2]).find(head + f1 + f5 + f19 + ">>\n>>\n"), std::string::npos) << pdf.object(p[2]);
}

void image_2x2() {
  const unsigned char px[12] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255};
  qqpdf2(2.5f, 2.5f, 10);
  qqpdf7(px, 6);
  qqpdf7(px + 6, 6);
  qqpdf2(0, 0, 11);
  qqpdf2(100, 200, 12);
  qqpdf2(50, 60, 14);
}

TEST_F(PdfDraw, ImageObjectAndPlacement) {
  for (bool compress : {false, true}) {
    const auto c = pages([] {
      xjdraw(0, 0, 3);
      xjdraw(100, 100, 2);
      image_2x2();
      image_2x2();
    }, compress);
    const auto p = pdf.pages();
    const std::string& po = pdf.object(p[0]);
    const auto streams = pdf.contents(p[0]);
    ASSERT_EQ(streams.size(), 3u);
    int img1 = 0, img2 = 0;
    for (const auto& [k, o] : pdf.objects)
      if (o.rfind("<< /Type /XObject /Subtype /Image\n", 0) == 0) (img1 == 0 ? img1 : img2) = k;
    ASSERT_GT(img2, img1);
    EXPECT_NE(po.find("/Resources << /ProcSet [/PDF /ImageC]\n/XObject <<\n/Image1 " + std::to_string(img1) + " 0 R\n/Image2 " +
                      std::to_string(img2) + " 0 R\n>>\n>>\n"),
              std::string::npos)
        << po;
    const std::string& io = pdf.object(img1);
    const std::string head = "<< /Type /XObject /Subtype /Image\n   /ColorSpace /DeviceRGB\n   /Width 2 /Height 2 /BitsPerComponent 8\n";
    if (compress) {
      EXPECT_EQ(io.substr(0, io.find("stream\n")), head + "   /Length " + std::to_string(zbt::number_after(io, "   /Length ")) +
                                                        "\n   /Filter /FlateDecode\n>>\n");
    } else {
      EXPECT_EQ(io.substr(0, io.find("stream\n")), head + "   /Length 12\n>>\n");
    }
    EXPECT_EQ(pdf.stream(img1), std::string("\xff\0\0\0\xff\0\0\0\xff\xff\xff\xff", 12));
    const std::string place = "q\n1 0 0 1 100.00 200.00 cm\n50.00 0 0 60.00 0 0 cm\n/Image1 Do\nQ\n";
    EXPECT_EQ(pdf.stream(streams[1]), place);
    EXPECT_EQ(pdf.stream(streams[2]), "q\n1 0 0 1 100.00 200.00 cm\n50.00 0 0 60.00 0 0 cm\n/Image2 Do\nQ\n");
    EXPECT_EQ(pdf.stream(streams[0]), std::string(kStart) + "0.00 0.00 m\n26.33 26.33 l\nS\n");
    EXPECT_EQ(c[0], "0.00 0.00 m\n26.33 26.33 l\nS\n" + place + pdf.stream(streams[2]));
  }
}

// Rows not delivered stay black, bytes beyond the image are dropped, and the turn of a
// landscape page goes between the translation and the scale.
TEST_F(PdfDraw, ImageDataIsHeldToItsSize) {
  for (bool compress : {false, true}) {
    pages([] {
      const unsigned char px[9] = {9, 9, 9, 9, 9, 9, 9, 9, 9};
      qqpdf2(2, 2, 10);
      qqpdf7(px, 9);
      qqpdf2(0, 0, 11);
      qqpdf2(1, 2, 12);
      qqpdf2(0, 0, 13);
      qqpdf2(3, 4, 14);
      qqpdf2(1, 1, 10);
      qqpdf7(px, 9);
      qqpdf7(px, 9);
      qqpdf2(0, 0, 11);
    }, compress);
    const auto p = pdf.pages();
    const auto s = pdf.contents(p[0]);
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(pdf.stream(s[1]), "q\n1 0 0 1 1.00 2.00 cm\n0 1 -1 0 0 0 cm\n3.00 0 0 4.00 0 0 cm\n/Image1 Do\nQ\n");
    EXPECT_EQ(pdf.stream(s[2]), "q\nQ\n");   // placed by nobody: ended at the page end
    std::vector<std::string> data;
    for (const auto& [k, o] : pdf.objects)
      if (o.rfind("<< /Type /XObject /Subtype /Image\n", 0) == 0) data.push_back(pdf.stream(k));
    ASSERT_EQ(data.size(), 2u);
    EXPECT_EQ(data[0], std::string(9, '\x09') + std::string(3, '\0'));
    EXPECT_EQ(data[1], std::string(3, '\x09'));
  }
}

TEST_F(PdfDraw, FormOfReadyContent) {
  const std::string block = "0 0 1 rg 0 0 10 10 re f\n";
  const auto* b = reinterpret_cast<const unsigned char*>(block.data());
  for (int icomp : {0, 1}) {
    int e1 = -1, e2 = -1, e3 = -1, e4 = -1;
    const auto c = pages([&] {
      qqpdf8(b, int(block.size()), 0, 0, 10, 10, 100, 100, 50, 50, icomp, 0, e1);
      qqpdf8(b, int(block.size()), 2, 3, 10, 20, 100, 100, 80, 50, icomp, 1, e2);
      qqpdf8(b, 0, 0, 0, 10, 10, 100, 100, 50, 50, icomp, 0, e3);   // no data
      qqpdf8(b, 24, 0, 0, 0, 10, 100, 100, 50, 50, icomp, 0, e4);   // empty box
    });
    EXPECT_EQ(e1, 0);
    EXPECT_EQ(e2, 0);
    EXPECT_EQ(e3, 1);
    EXPECT_EQ(e4, 1);
    const auto s = pdf.contents(pdf.pages()[0]);
    ASSERT_EQ(s.size(), 3u);
    EXPECT_EQ(pdf.stream(s[1]), "q\n1 0 0 1 100.00 100.00 cm\n1 0 0 1 0 0 cm\n5.00 0 0 5.00 0 0 cm\n/Form1 Do\nQ\n");
    EXPECT_EQ(pdf.stream(s[2]), "q\n1 0 0 1 98.00 147.00 cm\n0 -1 1 0 0 0 cm\n4.00 0 0 4.00 0 0 cm\n/Form2 Do\nQ\n");
    std::vector<int> forms;
    for (const auto& [k, o] : pdf.objects)
      if (o.rfind("<< /Type /XObject /Subtype /Form\n", 0) == 0) forms.push_back(k);
    ASSERT_EQ(forms.size(), 2u);
    const std::string& f = pdf.object(forms[1]);
    const std::string head = "<< /Type /XObject /Subtype /Form\n   /FormType 1\n   /BBox [2 3 12 23]\n   /Matrix [1 0 0 1 0 0]\n"
                             "   /Resources << /ProcSet [/PDF] >>\n";
    if (icomp == 0) EXPECT_EQ(f.substr(0, f.find("stream\n")), head + "   /Length 24\n>>\n");
    else EXPECT_EQ(f.substr(0, f.find("stream\n")), head + "   /Length " + std::to_string(zbt::number_after(f, "   /Length ")) + "\n   /Filter /FlateDecode\n>>\n");
    EXPECT_EQ(pdf.stream(forms[1]), block);
    EXPECT_NE(pdf.object(pdf.pages()[0]).find("/XObject <<\n/Form1 " + std::to_string(forms[0]) + " 0 R\n/Form2 " +
                                              std::to_string(forms[1]) + " 0 R\n>>\n"),
              std::string::npos);
  }
}

// Chapter, two sections, chapter: the outline tree, its links and its destinations.
TEST_F(PdfDraw, BookmarksMakeTheOutlineTree) {
  pages([] {
    pdfmrk("  Intro  ", "CHAP");
    pdfmrk("Part a", "sect");
    newpag();
    pdfmrk("Part b", "SECTION");
    newpag();
    pdfmrk("End", "CHAP");
  });
  const auto p = pdf.pages();
  ASSERT_EQ(p.size(), 3u);
  int root = 0;
  for (const auto& [k, o] : pdf.objects)
    if (o.rfind("<< /Type /Outlines\n", 0) == 0) root = k;
  ASSERT_GT(root, 0);
  auto r = [&](int k) { return std::to_string(root + k) + " 0 R\n"; };
  auto dest = [&](int page) { return "   /Dest [" + std::to_string(p[std::size_t(page)]) + " 0 R /XYZ 0 782 0]\n"; };
  EXPECT_EQ(pdf.object(root), "<< /Type /Outlines\n   /First " + r(1) + "   /Last " + r(4) + "   /Count 4\n>>\nendobj\n");
  EXPECT_EQ(pdf.object(root + 1), "<< /Title (Intro)\n   /Parent " + r(0) + "   /Next " + r(4) + "   /First " + r(2) +
                                      "   /Last " + r(3) + "   /Count 2\n" + dest(0) + ">>\nendobj\n");
  EXPECT_EQ(pdf.object(root + 2), "<< /Title (Part a)\n   /Parent " + r(1) + "   /Next " + r(3) + dest(0) + ">>\nendobj\n");
  EXPECT_EQ(pdf.object(root + 3), "<< /Title (Part b)\n   /Parent " + r(1) + "   /Prev " + r(2) + dest(1) + ">>\nendobj\n");
  EXPECT_EQ(pdf.object(root + 4), "<< /Title (End)\n   /Parent " + r(0) + "   /Prev " + r(1) + dest(2) + ">>\nendobj\n");
  EXPECT_EQ(pdf.object(1), "<< /Type /Catalog /Pages 2 0 R\n   /Outlines " + r(0) + "   /PageMode /UseOutlines\n>>\nendobj\n");
  // A real reader sees the same tree.
  std::string json;
  ASSERT_EQ(zbt::run("qpdf --json --json-key=outlines " + zg.cplotfl.str(), &json), 0) << json;
  for (const char* t : {"\"Intro\"", "\"Part a\"", "\"Part b\"", "\"End\""}) EXPECT_NE(json.find(t), std::string::npos) << t;
  EXPECT_NE(json.find("\"destpageposfrom1\": 3"), std::string::npos) << json;
}

// Titles stand as given; only one that would end its string early has ( ) and \ escaped.
TEST_F(PdfDraw, BookmarkTitles) {
  const std::pair<const char*, const char*> cases[] = {
      {"Results (2024)", "Results (2024)"},
      {"a\\(b", "a\\(b"},
      {"Part 1)", "Part 1\\)"},
      {"(open", "\\(open"},
      {"x) (y", "x\\) \\(y"},
      {"C:\\", "C:\\\\"},
  };
  pages([&] {
    for (const auto& c : cases) pdfmrk(c.first, "CHAP");
  });
  const std::string bytes = zbt::read_file(zg.cplotfl.str());
  for (const auto& c : cases) EXPECT_NE(bytes.find(std::string("<< /Title (") + c.second + ")\n"), std::string::npos) << c.first;
  std::string log;
  EXPECT_EQ(zbt::run("qpdf --check " + zg.cplotfl.str(), &log), 0) << log;
  EXPECT_NE(log.find("No syntax or stream encoding errors"), std::string::npos) << log;
}

TEST_F(PdfDraw, BookmarkRefusals) {
  metafl("PDF");
  zorini();
  take_text();
  const Zorglb before = zg;
  pdfmrk("Orphan", "SECT");
  pdfmrk("Odd", "HEAD");
  pdfmrk("", "");
  EXPECT_EQ(take_lines(), (std::vector<std::string>{" <<<< Warning 101: Bad structure for bookmarks in PDFMRK!",
                                                   " <<<< Warning 101: Bad parameter in PDFMRK!",
                                                   " <<<< Warning 101: Bad parameter in PDFMRK!"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  pdfmrk(std::string(300, 'x'), "CHAP");
  pdfmrk("Deep", "SUBS");   // needs a SECT first
  pdfmrk("Sect", "SECT");
  pdfmrk("Deep", "SUBS");
  pdfmrk("Deeper", "PARA");
  pdfmrk("Deepest", "SUBP");
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning 101: Bad structure for bookmarks in PDFMRK!"});
  zorfin();
  const std::string bytes = zbt::read_file(zg.cplotfl.str());
  EXPECT_NE(bytes.find("<< /Title (" + std::string(256, 'x') + ")\n"), std::string::npos);
  EXPECT_EQ(bytes.find("Orphan"), std::string::npos);
  EXPECT_NE(bytes.find("   /Count 5\n"), std::string::npos);
  EXPECT_TRUE(zbt::Pdf::parse(bytes).ok());
  take_text();
  // At level 0 the call is refused; on another output it does nothing.
  const Zorglb closed = zg;
  pdfmrk("Late", "CHAP");
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in PDFMRK!   (   0)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(closed));
  metafl("POST");
  zorini();
  pdfmrk("On paper", "CHAP");
  zorfin();
  EXPECT_EQ(take_text().find("<<<< Warning"), std::string::npos);
}

}  // namespace
