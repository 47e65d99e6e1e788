// The PDF file: head, objects and cross-reference offsets read back, a small file to the
// byte, deflated streams inflated by zlib, long pages split into streams, pages, paper
// sizes, the background, the buffer mode with pdfbuf, and the failures of opening.
#include <unistd.h>

#include <functional>

#include "formats/pdf.h"
#include "formats/pdf_support.h"
#include "frame/page.h"

using namespace zb;

namespace {

class PdfFile : public zbt::Fixture {
 protected:
  // One session on PDF; compression as given; returns the file read back.
  zbt::Pdf session(const std::function<void()>& draw = {}, bool compress = true,
                   const std::function<void()>& level0 = {}) {
    metafl("PDF");
    pdfmod(compress ? "ON" : "OFF", "COMP");
    if (level0) level0();
    zorini();
    if (draw) draw();
    zorfin();
    last = zbt::read_file(zg.cplotfl.str());
    return zbt::Pdf::parse(last);
  }
  std::string last;
};

void line_and_box() {
  xjdraw(100, 100, 3);
  xjdraw(1000, 1500, 2);
  dbox(200, 200, 600, 500, 0x010000FF);
}

// The whole of a small uncompressed file, byte by byte (the date masked).
TEST_F(PdfFile, SmallPlainFileToTheByte) {
  const zbt::Pdf pdf = session(line_and_box, false);
  ASSERT_TRUE(pdf.ok()) << pdf.problems[0];
  const std::string expected =
      "%PDF-1.3\n"
      "3 0 obj\n<< /Length 4 0 R >>\nstream\n"
      "0.709 w\n2 J\n2 j\n"
      "0 0 0 RG\n0 0 0 rg\n"            // resall's foreground, stroke then fill
      "26.33 26.33 m\n395.01 263.34 l\n"  // turned page: device x from plot y
      "S\n"
      "1 0 0 rg\n52.67 52.67 79.00 105.34 re\nf\n"
      "endstream\nendobj\n"
      "4 0 obj\n105\nendobj\n"
      "5 0 obj\n<<\n/Type /Page\n/MediaBox [0 0 553 782]\n/Parent 2 0 R\n/Rotate 90\n"
      "/Resources << /ProcSet [/PDF]\n>>\n/Contents 3 0 R\n>>\nendobj\n"
      "2 0 obj\n<< /Type /Pages /Kids [\n5 0 R\n] /Count 1\n>>\nendobj\n"
      "1 0 obj\n<< /Type /Catalog /Pages 2 0 R\n>>\nendobj\n"
      "6 0 obj\n<< /CreationDate (D:YYYYMMDDhhmmss)\n/Producer (ZORBEL 9.0)\n>>\nendobj\n"
      "xref\n0 7\n"
      "0000000000 65535 f \n"
      "0000000375 00000 n \n"
      "0000000316 00000 n \n"
      "0000000009 00000 n \n"
      "0000000166 00000 n \n"
      "0000000185 00000 n \n"
      "0000000424 00000 n \n"
      "trailer\n<< /Size 7 /Root 1 0 R /Info 6 0 R\n>>\nstartxref\n501\n%%EOF\n";
  EXPECT_EQ(zbt::masked(last), expected);
  EXPECT_EQ(pdf.size, 7);
  EXPECT_EQ(pdf.startxref, 501);
}

TEST_F(PdfFile, DateIsTheLocalTimeInPdfForm) {
  session();
  const std::size_t at = last.find("/CreationDate (D:");
  ASSERT_NE(at, std::string::npos);
  const std::string date = last.substr(at + 17, 15);
  EXPECT_EQ(date.size(), 15u);
  EXPECT_EQ(date.find_first_not_of("0123456789"), 14u);
  EXPECT_EQ(date[14], ')');
  EXPECT_GE(std::stoi(date.substr(0, 4)), 2024);
}

// Every entry of the table lands on "N 0 obj", /Size counts all objects, startxref finds
// the table: in plain and compressed files, with one and with several pages.
TEST_F(PdfFile, CrossReferenceOffsetsReadBack) {
  for (bool compress : {false, true}) {
    for (int pages : {1, 4}) {
      const zbt::Pdf pdf = session([&] {
        for (int p = 0; p < pages; ++p) {
          if (p > 0) newpag();
          line_and_box();
        }
      }, compress);
      ASSERT_TRUE(pdf.ok()) << pdf.problems[0];
      EXPECT_EQ(pdf.size, int(pdf.offsets.size()));
      EXPECT_EQ(pdf.pages().size(), std::size_t(pages));
      EXPECT_EQ(zbt::number_after(pdf.object(2), "] /Count "), pages);
      EXPECT_EQ(last.substr(0, 9), "%PDF-1.3\n");
      EXPECT_EQ(last.substr(last.size() - 6), "%%EOF\n");
      EXPECT_NE(pdf.object(1).find("/Type /Catalog /Pages 2 0 R"), std::string::npos);
    }
  }
}

TEST_F(PdfFile, DeflatedStreamInflatesToThePlainContent) {
  const zbt::Pdf plain = session(line_and_box, false);
  const zbt::Pdf packed = session(line_and_box, true);
  ASSERT_TRUE(packed.ok()) << packed.problems[0];
  // Compressed: the length is direct, no length object follows.
  const std::string& o = packed.object(3);
  const long n = zbt::number_after(o, "<< /Length ");
  EXPECT_EQ(o.substr(0, o.find("stream\n")), "<< /Length " + std::to_string(n) + "\n/Filter /FlateDecode\n>>\n");
  EXPECT_EQ(packed.object(4).substr(0, 15), "<<\n/Type /Page\n");
  bool ok = false;
  const std::string raw = o.substr(o.find("stream\n") + 7, std::size_t(n));
  EXPECT_EQ(zbt::inflate_all(raw, &ok), plain.content(5));
  EXPECT_TRUE(ok);
  EXPECT_EQ(plain.content(5).substr(0, 16), "0.709 w\n2 J\n2 j\n");
}

TEST_F(PdfFile, EmptyPageHasOneStreamAndAValidPage) {
  for (bool compress : {false, true}) {
    const zbt::Pdf pdf = session({}, compress);
    ASSERT_TRUE(pdf.ok());
    ASSERT_EQ(pdf.pages().size(), 1u);
    const int page = pdf.pages()[0];
    EXPECT_EQ(pdf.contents(page), std::vector<int>{3});
    EXPECT_EQ(pdf.content(page), "0.709 w\n2 J\n2 j\n0 0 0 RG\n0 0 0 rg\n");
    // Without compression every stream has an indirect length.
    if (!compress) EXPECT_EQ(pdf.object(3).substr(0, 27), "<< /Length 4 0 R >>\nstream\n");
  }
}

// Content beyond the stream buffer continues in further streams, listed as an array.
TEST_F(PdfFile, LongPageSplitsIntoStreams) {
  auto many = [] {
    for (int i = 0; i < 40000; ++i) {
      xjdraw(float(i % 2900), float(i % 2000), 3);
      xjdraw(float((i * 7) % 2900), float((i * 3) % 2000), 2);
    }
  };
  const zbt::Pdf plain = session(many, false);
  const zbt::Pdf packed = session(many, true);
  ASSERT_TRUE(packed.ok()) << packed.problems[0];
  const int page = packed.pages()[0];
  const std::vector<int> streams = packed.contents(page);
  ASSERT_GE(streams.size(), 3u);
  EXPECT_NE(packed.object(page).find("/Contents [\n" + std::to_string(streams[0]) + " 0 R\n"), std::string::npos);
  for (int k : streams) EXPECT_LE(packed.stream(k).size(), 300000u);
  EXPECT_EQ(packed.content(page), plain.content(plain.pages()[0]));
  EXPECT_EQ(plain.contents(plain.pages()[0]).size(), 1u);
}

TEST_F(PdfFile, NewPageStartsFromTheLineSettings) {
  const zbt::Pdf pdf = session([] {
    qqsclr(0x010000FF);
    dbox(10, 10, 20, 20, 0x010000FF);
    lnjoin("ROUND");
    linwid(10);
    newpag();
    newpag();
  });
  ASSERT_TRUE(pdf.ok());
  const auto pages = pdf.pages();
  ASSERT_EQ(pages.size(), 3u);
  // Join, cap, width, then the pen colour, whose fill is written again on the new page.
  EXPECT_EQ(pdf.content(pages[1]), "1 j\n2 J\n2.835 w\n1 0 0 RG\n1 0 0 rg\n");
  EXPECT_EQ(pdf.content(pages[2]), pdf.content(pages[1]));
  for (int p : pages) EXPECT_NE(pdf.object(p).find("/MediaBox [0 0 553 782]\n/Parent 2 0 R\n/Rotate 90\n"), std::string::npos);
}

// Paper and turning: the MediaBox holds the page at the scale that fills the paper.
TEST_F(PdfFile, PaperSizesAndTurning) {
  struct Case {
    std::function<void()> setup;
    const char* box;
    bool turned;
  };
  const Case cases[] = {
      {[] {}, "[0 0 553 782]", true},
      {[] { setpag("DA4P"); }, "[0 0 553 782]", false},
      {[] { pagmod("NONE"); }, "[0 0 553 391]", false},
      {[] { hwpage(3000, 4000); }, "[0 0 802 1134]", true},
      {[] { setpag("USAP"); }, "[0 0 553 715]", false},
  };
  for (const auto& c : cases) {
    zb::reset_process_state();
    const zbt::Pdf pdf = session({}, true, c.setup);
    ASSERT_TRUE(pdf.ok());
    const std::string& page = pdf.object(pdf.pages()[0]);
    EXPECT_NE(page.find(std::string("/MediaBox ") + c.box + "\n"), std::string::npos) << c.box << page;
    EXPECT_EQ(page.find("/Rotate 90") != std::string::npos, c.turned) << c.box;
  }
}

TEST_F(PdfFile, BlackBackgroundUnlessReversed) {
  for (const char* mode : {"AUTO", "REVERS", "ERASE", "NOREV"}) {
    zb::reset_process_state();
    const zbt::Pdf pdf = session({}, false, [&] { scrmod(mode); });
    const std::string c = pdf.content(pdf.pages()[0]);
    const bool black = std::string(mode) == "ERASE" || std::string(mode) == "NOREV";
    const std::string bg = "0.709 w\n2 J\n2 j\n0 0 0 rg\n0.00 0.00 552.76 781.86 re\nf\n";
    EXPECT_EQ(c.rfind(bg, 0) == 0, black) << mode << "\n" << c;
  }
}

TEST_F(PdfFile, BufferModeAndPdfbuf) {
  // The reference: the same session written to a file.
  session(line_and_box);
  const std::string reference = zbt::masked(last);
  zb::reset_process_state();
  metafl("PDF");
  pdfmod("ON", "BUFFER");
  setfil("inmemory.pdf");
  zorini();
  line_and_box();
  zorfin();
  EXPECT_FALSE(zb::file_exists("inmemory.pdf"));
  const std::string text = take_text();
  EXPECT_NE(text.find("  <<  Metafile:                                                   <<"), std::string::npos) << text;
  int nlen = -5;
  pdfbuf(nullptr, 0, nlen);
  EXPECT_EQ(nlen, int(reference.size()));
  std::string small(std::size_t(nlen - 1), ' ');
  pdfbuf(small.data(), nlen - 1, nlen);
  EXPECT_EQ(nlen, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning 101: Buffer too small for PDF file in PDFBUF!"});
  std::string buf(reference.size() + 10, ' ');
  pdfbuf(buf.data(), int(buf.size()), nlen);
  ASSERT_EQ(nlen, int(reference.size()));
  EXPECT_EQ(zbt::masked(buf.substr(0, std::size_t(nlen))), reference);
  EXPECT_TRUE(zbt::Pdf::parse(buf.substr(0, std::size_t(nlen))).ok());
  // The copy freed the buffer.
  pdfbuf(buf.data(), int(buf.size()), nlen);
  EXPECT_EQ(nlen, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning 101: Internal PDF buffer is empty in PDFBUF!"});
}

TEST_F(PdfFile, PdfbufRefusals) {
  struct Case {
    const char* fmt;
    bool buffer;
    const char* line;
  };
  const Case cases[] = {
      {"POST", true, " <<<< Warning 101: Output format is not PDF in PDFBUF!"},
      {"PDF", false, " <<<< Warning 101: Buffer output is not enabled for PDF in PDFBUF!"},
  };
  for (const auto& c : cases) {
    zb::reset_process_state();
    metafl(c.fmt);
    if (c.buffer) pdfmod("ON", "BUFF");
    zorini();
    zorfin();
    take_text();
    const Zorglb before = zg;
    char buf[16];
    int nlen = 7;
    pdfbuf(buf, 16, nlen);
    EXPECT_EQ(nlen, 0);
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
}

// The file buffer cannot grow: later bytes are only counted, and pdfbuf gives warning 53.
TEST_F(PdfFile, BufferThatCannotGrowGivesWarning53) {
  metafl("PDF");
  pdfmod("OFF", "COMP");
  pdfmod("ON", "BUFF");
  zorini();
  detail::alloc_fail_after = 0;
  for (int i = 0; i < 20000; ++i) {
    xjdraw(float(i % 2900), 100, 3);
    xjdraw(float(i % 2900), 1900, 2);
  }
  zorfin();
  detail::alloc_fail_after = -1;
  take_text();
  int nlen = 0;
  pdfbuf(nullptr, 0, nlen);
  EXPECT_GT(nlen, 512000);   // counted all the same
  std::string buf(std::size_t(nlen), ' ');
  pdfbuf(buf.data(), nlen, nlen);
  EXPECT_EQ(nlen, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  53: Not enough memory in PDFBUF!"});
}

// No stream buffer: the stream is written plain, with its indirect length, silently.
TEST_F(PdfFile, NoMemoryForTheStreamBufferWritesItPlain) {
  metafl("PDF");
  detail::alloc_fail_after = 2;   // the object table's two arrays only
  zorini();
  detail::alloc_fail_after = -1;
  line_and_box();
  newpag();
  zorfin();
  const zbt::Pdf pdf = zbt::Pdf::parse(zbt::read_file(zg.cplotfl.str()));
  ASSERT_TRUE(pdf.ok());
  EXPECT_EQ(pdf.object(3).substr(0, 20), "<< /Length 4 0 R >>\n");
  EXPECT_EQ(pdf.content(pdf.pages()[0]).substr(0, 8), "0.709 w\n");
  // The next page has memory again and is deflated.
  const int second = pdf.contents(pdf.pages()[1])[0];
  EXPECT_NE(pdf.object(second).find("/Filter /FlateDecode"), std::string::npos);
  const std::string text = take_text();
  EXPECT_EQ(text.find("<<<< Warning"), std::string::npos) << text;
}

// Deflate without memory for its output: plain bytes with a direct length.
TEST_F(PdfFile, NoMemoryForDeflateWritesThePlainBytes) {
  metafl("PDF");
  zorini();
  line_and_box();
  detail::alloc_fail_after = 0;
  zorfin();
  detail::alloc_fail_after = -1;
  const zbt::Pdf pdf = zbt::Pdf::parse(zbt::read_file(zg.cplotfl.str()));
  ASSERT_TRUE(pdf.ok());
  EXPECT_EQ(pdf.object(3).substr(0, 26), "<< /Length 105 >>\nstream\n0");
  EXPECT_EQ(pdf.stream(3).size(), 105u);
}

// The file cannot be opened, or no memory for the object table: the warning, then a stop.
TEST_F(PdfFile, OpeningFailuresStopTheProgram) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  auto open_in = [](const char* name, long allow) {
    capture_stdout(nullptr);
    dup2(2, 1);   // warnings on standard output, which the death test cannot see
    metafl("PDF");
    setfil(name);
    detail::alloc_fail_after = allow;
    zorini();
  };
  EXPECT_EXIT(open_in("no/such/folder/x.pdf", -1), testing::ExitedWithCode(1), "Warning  36: File error in ZORINI!");
  EXPECT_EXIT(open_in("x.pdf", 0), testing::ExitedWithCode(1), "Warning  53: Not enough memory in ZORINI!");
  EXPECT_EXIT((pdfmod("ON", "BUFF"), open_in("x.pdf", 2)), testing::ExitedWithCode(1), "Warning  53: Not enough memory in ZORINI!");
}

TEST_F(PdfFile, PdfmodKeysAndRefusals) {
  struct Step {
    const char* opt;
    const char* key;
    int after;
  };
  const Step steps[] = {{"OFF", "COMP", 0}, {"ON", "BUFF", 2}, {"on", "comp", 3}, {"OFF", "BUFFER", 1}};
  for (const auto& s : steps) {
    pdfmod(s.opt, s.key);
    EXPECT_EQ(zg.ipdfmod, s.after) << s.opt << " " << s.key;
  }
  EXPECT_TRUE(take_lines().empty());
  const Zorglb before = zg;
  pdfmod("ON", "FAST");
  pdfmod("MAYBE", "COMP");
  EXPECT_EQ(take_lines(), (std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in PDFMOD!   (FAST)",
                                                   " <<<< Warning   2: Incorrect parameter in PDFMOD!   (MAYBE)"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  metafl("PDF");
  zorini();
  take_text();
  const Zorglb open = zg;
  pdfmod("OFF", "COMP");
  int nlen = 3;
  pdfbuf(nullptr, 0, nlen);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{" <<<< Warning   3: Incorrect level in PDFMOD!   (   1)",
                                                   " <<<< Warning   3: Incorrect level in PDFBUF!   (   1)"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(open));
  zorfin();
}

}  // namespace
