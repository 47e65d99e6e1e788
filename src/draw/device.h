// The device layer: output choice, the dispatcher of pen moves, boxes, colour changes and
// the output record, and the hooks by which the session opens and ends an output.
#pragma once
#include <string>
#include <string_view>

namespace zb {

// Output choice.
void metafl(std::string_view cfmt);
std::string getmfl();
int qqgdnr(std::string_view cfmt);        // device number, 0 and warning 2 if unknown
std::string qqgfxt(int idev);             // default file extension, blank if none

// Pen stream and fills, in plot coordinates with the origin added (xjdraw) or not (dbox).
void xjdraw(float x, float y, int icode);
void xjpoly(const float* xray, const float* yray, int n);
void dbox(float x1, float y1, float x2, float y2, int iclr);
void qqsclr(int iclr);
void sendbf();
int grey_pattern_row(int ipat, int row);   // grey fill patterns 1..9 of terminals and printers

// Output record.
void qqsbuf(const char* cbuf, int n);
void qpsbuf(const char* cbuf, int n);
inline void qqsbuf(std::string_view s) { qqsbuf(s.data(), int(s.size())); }
inline void qpsbuf(std::string_view s) { qpsbuf(s.data(), int(s.size())); }
void write_record();                      // writes cobuf as one record of the plot file

// Session hooks.
void zori01();                            // screen
void zori02();                            // opens the plot file
void zori03();                            // devscl and file head
int device_end();                         // ends the output; 1 if the protocol shows the file
void device_newpage();
void device_erase();
void device_after_close();                // waits of the terminals after the file is closed

// PostScript driver.
void inipsc(int lun);
void drwpsc(float x, float y, int icode);
void psc_reset();

// Tektronix addressing.
void dtdraw(int ix, int iy, int icode);
void dtdr12(int ix, int iy, int icode);
void gtk12b(int ix, int iy, char out[5]);

}  // namespace zb
