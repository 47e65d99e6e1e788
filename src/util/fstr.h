// Fixed-length blank-padded character fields of the state record, and the conversions
// between Fortran string arguments (pointer + hidden length) and std::string_view.
#pragma once
#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <string_view>

namespace zb {

// A blank-padded field of N characters, as the record stores names and keywords.
template <int N>
struct FStr {
  std::array<char, N> c = blanks();

  static constexpr std::array<char, N> blanks() {
    std::array<char, N> a{};
    for (auto& ch : a) ch = ' ';
    return a;
  }
  constexpr FStr() = default;
  constexpr FStr(std::string_view s) { assign(s); }   // NOLINT: implicit on purpose
  constexpr void assign(std::string_view s) {
    const std::size_t n = std::min<std::size_t>(s.size(), N);
    for (std::size_t i = 0; i < N; ++i) c[i] = i < n ? s[i] : ' ';
  }
  constexpr FStr& operator=(std::string_view s) { assign(s); return *this; }
  // Contents without trailing blanks.
  constexpr std::string_view view() const {
    std::size_t n = N;
    while (n > 0 && c[n - 1] == ' ') --n;
    return {c.data(), n};
  }
  // All N characters, blanks included.
  constexpr std::string_view full() const { return {c.data(), std::size_t(N)}; }
  std::string str() const { return std::string(view()); }
  constexpr bool operator==(const FStr&) const = default;
};

// Fortran string argument to a view without trailing blanks; a negative length counts as 0.
inline std::string_view fstr(const char* s, int len) {
  if (s == nullptr || len <= 0) return {};
  std::size_t n = std::size_t(len);
  while (n > 0 && s[n - 1] == ' ') --n;
  return {s, n};
}

// Copies s into a Fortran output string of length len, cut or blank-padded.
inline void fput(char* s, int len, std::string_view v) {
  if (s == nullptr || len <= 0) return;
  const std::size_t n = std::min<std::size_t>(v.size(), std::size_t(len));
  std::memcpy(s, v.data(), n);
  std::memset(s + n, ' ', std::size_t(len) - n);
}

// Upper-cases a to z only, as keywords are compared.
inline char upper(char ch) { return (ch >= 'a' && ch <= 'z') ? char(ch - 32) : ch; }
inline std::string upper(std::string_view s) {
  std::string r(s);
  for (auto& ch : r) ch = upper(ch);
  return r;
}

}  // namespace zb
