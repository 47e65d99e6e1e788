// Page settings: format, size, turning, units, scale and paper, and the page frame.
#pragma once
#include <string_view>

namespace zb {

void setpag(std::string_view cpag);
void page(int nx, int ny);
void pagera();
void pagmod(std::string_view cmod);
void pagorg(std::string_view copt);
void units(std::string_view cunit);
void sclfac(float xfac);
void sclmod(std::string_view cmod);
void scrmod(std::string_view cmod);
void hwpage(int nw, int nh);
void hworig(int nx, int ny);

}  // namespace zb
