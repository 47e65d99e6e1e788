// The call frame, warnings, channels and the session: what every other folder calls.
#pragma once
#include <cstdio>
#include <string>
#include <string_view>

#include "frame/zorglb.h"
#include "util/alloc.h"
#include "util/fmt.h"
#include "util/fstr.h"

namespace zb {

inline constexpr float kVersion = 9.0f;   // printed as F3.1 / F4.1

// Levels, keywords, ranges.
int jqqlev(int nmin, int nmax, std::string_view cname);
void chkini(std::string_view cname);
int jqqind(std::string_view clist, int nlist, std::string_view cstr);
int jqqval(int ival, int nmin, int nmax);
int jqqyvl(int iy);
int jqquni(int nval);
int jqqdat(int iday, int imonth, int iyear);
void upstr(char* s, int len);
float trmlen(std::string_view s);
void getlev(int& nlev);
void first_call_init();

// Warnings.
void errmes(int icode);
void warnin(int icode);
void warni1(int icode, int ival);
void warnc1(int icode, std::string_view cstr);
void qqserr(std::string_view cstr);
void qqerrfil();
void errmod(std::string_view cstr, std::string_view cmod);
void errdev(std::string_view cstr);
void errfil(std::string_view cfil);
void unit(int nu);
void getuni(int& nu);
void lsechk(std::string_view cstr);
// Channel of warnings as resall fixes it: 17 if an error file is due, else 6.
int default_lunerr();

// Text channels: 6 stdout, 17 error file, 15 plot file; any other number a caller's
// channel, written to the file "fort.<n>".
void lun_write(int lun, std::string_view line);
void capture_stdout(std::string* sink);   // tests: collect channel 6 instead of printing
bool lun_open(int lun, const std::string& name, const char* mode);   // fopen modes
void lun_close(int lun, bool remove = false);
std::FILE* lun_file(int lun);
[[noreturn]] void qqstop(std::string_view l1, std::string_view l2);
bool file_exists(const std::string& name);

// Session.
void zorini();
void zorfin();
void newpag();
void erase();
void reset(std::string_view ckey);
void resall();
void defvar();
void zorlog();
void clock_strings(std::string& date, std::string& time);
std::string qqgetenv(std::string_view cname);
std::string gusrid();
std::string data_dir();
void sopnfl(int kind, int& lun, int& ierr);
void qqopen(int lun, std::string_view cfil, int mode, int& ierr);
void setfil(std::string_view cfil);
std::string getfil();
void filmod(std::string_view cmod);
bool gfilnn(std::string& cfil);
void origin(int nx, int ny);
void getor(int& nx, int& ny);
void getpag(int& nx, int& ny);
void dprcol(int mode);

// Per-folder defaults and reset keywords, called by resall and reset.
void resall_device();
void resall_line();
void resall_colour();
void resall_fill();
void resall_prims();
void resall_formats();
void resall_raster();
void resall_text();
void resall_axes();
void resall_charts();
void resall_contour();
void resall_graph3d();
void resall_maps();
void resall_shield();
void resall_widgets();
void resall_logo();
// Each returns nothing; it restores what its own routines set for the 4-letter key.
void reset_device(std::string_view key);
void reset_line(std::string_view key);
void reset_colour(std::string_view key);
void reset_fill(std::string_view key);
void reset_prims(std::string_view key);
void reset_formats(std::string_view key);
void reset_raster(std::string_view key);
void reset_text(std::string_view key);
void reset_axes(std::string_view key);
void reset_charts(std::string_view key);
void reset_contour(std::string_view key);
void reset_graph3d(std::string_view key);
void reset_maps(std::string_view key);
void reset_shield(std::string_view key);
void reset_widgets(std::string_view key);
void reset_logo(std::string_view key);

// Tests: back to the state of a freshly loaded library.
void reset_process_state();

}  // namespace zb

#define ZB_EXPORT extern "C" [[gnu::visibility("default")]]
