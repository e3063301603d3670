// The response envelope and the per-channel record walk shared by the
// encode family's translators that do their own envelope handling.
#ifndef KOVA_CONFIG_MEDIA_MEDIA_RESPONSE_H_
#define KOVA_CONFIG_MEDIA_MEDIA_RESPONSE_H_

#include <json/value.h>

#include <cstdint>

#include "drivers/table_driver.h"

namespace kova {

// Reads `jsonText` into `root` and points `table` at "params"."table" (the
// shared null value when either is missing). Returns false when the text does
// not parse, or when `checkResult` is set and "result" is not true.
bool ReadResponse(const char* jsonText, bool checkResult, Json::Value* root,
                  const Json::Value** table);

// Fills one record of `size` bytes per channel of `table`: element i of an
// array into record i, as many as `outLen` holds, or `table` itself into
// record 0 when it is not an array. Null elements are handed to `fill` like
// any other. Returns the number of records walked.
using ChannelFill = void (*)(const Json::Value& channel, unsigned char* record);
uint32_t WalkChannels(const Json::Value& table, unsigned char* out, uint32_t outLen, uint32_t size,
                      ChannelFill fill);

// A whole per-channel parse: reads the response (judging "result" when
// `checkResult` is set; 0 when it fails), then walks "params"."table" with
// WalkChannels and stores the bytes walked into `*retLen`. A null table
// succeeds with 0 bytes. `outLen` below one record fails.
int ParseChannels(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                  uint32_t size, bool checkResult, ChannelFill fill);

// A whole one-record parse: reads the response ("result" must be true),
// fills a zeroed record of `size` bytes from "params"."table" with `fill`
// and copies it out whole. A null table succeeds with 0 bytes.
int ParseOneRecord(const char* jsonText, void* outBuf, uint32_t outLen, uint32_t* retLen,
                   uint32_t size, ChannelFill fill);

// Stores `bytes` into `*retLen` when it is not null.
void SetReturnedLength(uint32_t* retLen, uint64_t bytes);

// Packs inLen / size records with `packer`: one record as an object, several
// as an array. Less than one record is refused. The text is copied with its
// terminating zero only when it fits.
int PackChannels(const void* inBuf, uint32_t inLen, char* outJson, uint32_t outLen, uint32_t size,
                 RecordPacker packer);

}  // namespace kova

#endif  // KOVA_CONFIG_MEDIA_MEDIA_RESPONSE_H_
