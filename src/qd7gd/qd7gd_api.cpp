#include "qd7gd.h"
extern "C" {
__attribute__((visibility("default"))) int32_t ReadRegistry(const char*, char*) { return 0; }
__attribute__((visibility("default"))) int32_t UpdateRegistry(const char*, const char*) { return 0; }
__attribute__((visibility("default"))) int32_t DeleteRegistry(const char*) { return 0; }
__attribute__((visibility("default"))) int32_t Encrypt(const char*, const char*, char*) { return 0; }
__attribute__((visibility("default"))) int32_t Decrypt(const char*, const char*, char*) { return 0; }
}
