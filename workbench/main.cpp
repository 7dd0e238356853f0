#include <cstdio>

int main() {
  std::puts("tarvex " TARVEX_VERSION);
  return 0;
}
