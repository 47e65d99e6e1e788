// Octree colour quantiser: RGB pictures to at most 256 palette entries and one index per
// pixel, for the file formats that need indices. Levels 0 (root) to 8; the tree is reduced
// after each pixel so that it never holds more than 257 leaves.
#include <array>
#include <cstdint>
#include <new>

#include "raster/raster.h"
#include "raster/store.h"

namespace zb {

namespace {

struct Node {
  std::uint32_t count = 0;
  std::uint64_t sum_r = 0, sum_g = 0, sum_b = 0;   // wide: a large picture of one colour
  int level = 0;
  bool leaf = false;
  unsigned char index = 0;
  std::array<Node*, 8> child{};
  Node* next = nullptr;                            // next reducible node of its level
};

class Octree {
 public:
  ~Octree() { drop(root_); }
  bool ok() const { return root_ != nullptr; }

  void add(unsigned r, unsigned g, unsigned b) {
    Node* n = root_;
    while (!n->leaf) {
      const int k = branch(r, g, b, n->level);
      if (n->child[std::size_t(k)] == nullptr) {
        Node* c = make(n->level + 1);
        if (c == nullptr) return;   // this pixel stays out of the sums
        n->child[std::size_t(k)] = c;
      }
      n = n->child[std::size_t(k)];
    }
    ++n->count;
    n->sum_r += r;
    n->sum_g += g;
    n->sum_b += b;
    while (leaves_ > 256) reduce();
  }

  void palette(unsigned char* r, unsigned char* g, unsigned char* b) {
    int next = 0;
    number(root_, next, r, g, b);
  }

  unsigned char index_of(unsigned r, unsigned g, unsigned b) const {
    const Node* n = root_;
    while (!n->leaf && n->level < 8) {
      n = n->child[std::size_t(branch(r, g, b, n->level))];
      if (n == nullptr) return 0;
    }
    return n->index;
  }

  Octree() { root_ = make(0); }

 private:
  static int branch(unsigned r, unsigned g, unsigned b, int level) {
    const int s = 7 - level;
    return int(((r >> s) & 1u) * 4 + ((g >> s) & 1u) * 2 + ((b >> s) & 1u));
  }

  Node* make(int level) {
    if (!raster_alloc_allowed()) return nullptr;
    Node* n = new (std::nothrow) Node;
    if (n == nullptr) return nullptr;
    n->level = level;
    if (level == 8) {
      n->leaf = true;
      ++leaves_;
    } else {
      n->next = reducible_[std::size_t(level)];
      reducible_[std::size_t(level)] = n;
    }
    return n;
  }

  // The first node of the deepest non-empty list, from level 7 up; its children are leaves.
  void reduce() {
    int level = 7;
    while (level > 0 && reducible_[std::size_t(level)] == nullptr) --level;
    Node* n = reducible_[std::size_t(level)];
    if (n == nullptr) return;
    reducible_[std::size_t(level)] = n->next;
    for (Node*& c : n->child) {
      if (c == nullptr) continue;
      n->count += c->count;
      n->sum_r += c->sum_r;
      n->sum_g += c->sum_g;
      n->sum_b += c->sum_b;
      drop(c);
      c = nullptr;
      --leaves_;
    }
    n->leaf = true;
    ++leaves_;
  }

  void number(Node* n, int& next, unsigned char* r, unsigned char* g, unsigned char* b) {
    if (n == nullptr) return;
    if (n->leaf) {
      n->index = (unsigned char)next;
      const std::uint64_t c = n->count ? n->count : 1;
      r[next] = (unsigned char)(n->sum_r / c);
      g[next] = (unsigned char)(n->sum_g / c);
      b[next] = (unsigned char)(n->sum_b / c);
      ++next;
      return;
    }
    for (Node* c : n->child) number(c, next, r, g, b);
  }

  static void drop(Node* n) {
    if (n == nullptr) return;
    for (Node* c : n->child) drop(c);
    delete n;
  }

  Node* root_ = nullptr;
  std::array<Node*, 8> reducible_{};
  int leaves_ = 0;
};

}  // namespace

bool qqquant(const unsigned char* rgb, int nw, int nh, unsigned char* idx, unsigned char* r,
             unsigned char* g, unsigned char* b) {
  if (rgb == nullptr || idx == nullptr || nw < 1 || nh < 1) return false;
  Octree tree;
  if (!tree.ok()) return false;
  const std::size_t n = std::size_t(nw) * std::size_t(nh);
  for (std::size_t i = 0; i < n; ++i) tree.add(rgb[3 * i], rgb[3 * i + 1], rgb[3 * i + 2]);
  for (int i = 0; i < 256; ++i) r[i] = g[i] = b[i] = 0;
  tree.palette(r, g, b);
  for (std::size_t i = 0; i < n; ++i) idx[i] = tree.index_of(rgb[3 * i], rgb[3 * i + 1], rgb[3 * i + 2]);
  return true;
}

}  // namespace zb
