#pragma once
#include <stdint.h>
#ifdef __cplusplus
extern "C" {
#endif
int32_t ReadRegistry(const char* name, char* buffer);
int32_t UpdateRegistry(const char* name, const char* buffer);
int32_t DeleteRegistry(const char* name);
int32_t Encrypt(const char* input, const char* key, char* output);
int32_t Decrypt(const char* input, const char* key, char* output);
#ifdef __cplusplus
}
#endif
