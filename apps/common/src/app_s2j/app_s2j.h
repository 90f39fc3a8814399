/*
 * app_s2j.h - libapp_s2j: appliance records <-> JSON.
 *
 * This file is written by the build (target api-files) from the library's
 * instantiation lists, its keyword readers and app_s2j.h.in: edit those,
 * then write it again; the test public_header_is_up_to_date fails until then.
 *
 * Ownership, once for the whole library: the caller owns every record, record
 * array, count, text and tree it passes in; the library never keeps a pointer
 * to any of them past the call.  A text returned by s2j_<T> or s2j_array_<T>
 * is allocated with malloc() and the caller frees it with free().  A tree
 * returned by struct_to_json_<T> or by the cJSON integer functions belongs to
 * the caller, who frees it with cJSON_Delete().  Every tree the library makes
 * or parses for itself is freed before the call returns.
 *
 * Status codes returned by the c2s, j2s, f2s and s2f families:
 *    0  success
 *   -1  the record reader rejected a member (wrong JSON type); the record or
 *       array is left partly filled, never rolled back
 *   -2  a required argument is NULL or zero, the tree is of the wrong JSON
 *       type, the text does not parse, or an update element lacks its key
 *   -7  a file could not be opened for writing, or was written short
 *  -15  a file could not be opened for reading, there was no memory for its
 *       text, or there was no text to write
 *
 * Diagnostics: every failure a family detects itself is reported on stderr
 * in three writes: "\033[1;31m<ERROR! file:line, function>: ", the message,
 * and "\033[0m".  Nothing is printed on success.  The library has no other
 * output, no options and no global state of its own.  Calls are safe from any
 * thread as long as no two threads share a record, an array or a file; the
 * parse-error position that diagnostics quote is cJSON's, and process-wide.
 */
#ifndef APP_S2J_H
#define APP_S2J_H

/* The library's version, stated here once: the build, the soname, pkg-config,
 * the CMake package and the Debian packages all take it from these lines. */
#define APP_S2J_VERSION_MAJOR 1
#define APP_S2J_VERSION_MINOR 0
#define APP_S2J_VERSION_PATCH 0
#define APP_S2J_VERSION_STRING "1.0.0"

#include <stddef.h>
#include <cjson/cJSON.h>
#include "app_s2j_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ======================================================================
 * 64-bit integers on top of cJSON
 *
 * An integer item is a cJSON number item carrying the library's integer mark
 * (a bit of `type` above cJSON's own flags; cJSON's type tests ignore it).
 * Its value is exact over the whole int64_t range: below 10^15 in magnitude
 * the item is a cJSON_Number whose double holds the value exactly; from 10^15
 * on it is a cJSON_Raw item whose text is the decimal value, so that
 * cJSON_Print() writes it digit for digit.  Every text the library parses is
 * marked the same way: an integer literal (no fraction, no exponent) within
 * the int64_t range becomes an integer item, any other number does not.  In a
 * tree parsed by plain cJSON no item is marked, and an integral number within
 * the int64_t range counts as an integer.  An item is an integer when its
 * current value is one: after cJSON_SetNumberValue() an item counts as an
 * unmarked number with its new value would (2.5 is no integer, 5 is one),
 * though cJSON itself still prints a cJSON_Raw item's old text.
 * ====================================================================== */

/* A new integer item holding num exactly, or NULL when out of memory. */
cJSON *cJSON_CreateInt(int64_t num);
/* Adds cJSON_CreateInt(num) to object under name; the new item, or NULL
 * (nothing added) when object or name is NULL or memory runs out. */
cJSON *cJSON_AddIntToObject(cJSON *object, const char *name, int64_t num);
/* True when item is an integer item (see above); false for NULL. */
cJSON_bool cJSON_IsInt(const cJSON *item);

/* ======================================================================
 * The families.  T is a record type of app_s2j_types.h; each type has only
 * the members listed for it below.
 *
 * Emitter and reader (every type):
 *   cJSON *struct_to_json_T(const T *struct_ptr);
 *     A new object holding every field in order, or NULL when the object
 *     itself cannot be made.  struct_ptr must not be NULL.
 *   int json_to_struct_T(T *struct_ptr, const cJSON *json);
 *     1 on success, 0 at the first member of the wrong JSON type.  Absent
 *     keys are skipped; keys match without regard to letter case.  Integers
 *     are stored as their low 32 (16) bits; strings are cut to N-1 bytes.
 *
 * Single records:
 *   char *s2j_T(const T *struct_ptr, int formatted);      text or NULL
 *   int c2s_T(const cJSON *json, T *struct_ptr);          status
 *   int j2s_T(const char *json_str, T *struct_ptr);       status
 *   int j2s_T_with_len(const char *json_str, size_t json_str_len, T *struct_ptr);
 *
 * Record arrays (*struct_array_size: capacity in, elements filled out; the
 * count is written only on success; a NULL struct_array asks for the number
 * of elements of the JSON array):
 *   char *s2j_array_T(const T *struct_array, uint32_t struct_array_size, int formatted);
 *   int c2s_array_T(const cJSON *json, T *struct_array, uint32_t *struct_array_size);
 *   int j2s_array_T(const char *json_str, T *struct_array, uint32_t *struct_array_size);
 *   int j2s_array_T_with_len(const char *json_str, size_t json_str_len,
 *                            T *struct_array, uint32_t *struct_array_size);
 *
 * Keyed update (each JSON element names an element of struct_array by its key
 * fields and is applied to the first element with equal keys; on success the
 * count becomes the number of JSON elements applied):
 *   int c2s_array_update_T(const cJSON *json, T *struct_array, uint32_t *struct_array_size);
 *   int j2s_array_update_T(const char *json_str, T *struct_array, uint32_t *struct_array_size);
 *   int j2s_array_update_T_with_len(const char *json_str, size_t json_str_len,
 *                                   T *struct_array, uint32_t *struct_array_size);
 *   int json_to_struct_TKeyword(TKeyword *keyword, const cJSON *json);
 *     1 when every key field was read, 0 at the first absent or mistyped one.
 *   int json_to_struct_GetTKeyword(<first key> *key, const cJSON *json);
 *     The same for the first key only (a string key is char[64]).
 *
 * Files (one record or one record array per file, indented JSON, written in
 * place and synced; fine_name is the file's path):
 *   int f2s_T(const char *fine_name, T *struct_ptr);
 *   int s2f_T(const char *fine_name, const T *struct_ptr);
 *   int f2s_array_T(const char *fine_name, T *struct_array, uint32_t *struct_array_size);
 *   int s2f_array_T(const char *fine_name, const T *struct_array, uint32_t struct_array_size);
 * ====================================================================== */

/* ======================================================================
 * System, time and account records
 * ====================================================================== */

cJSON *struct_to_json_DeviceInfo(const DeviceInfo *struct_ptr);
int json_to_struct_DeviceInfo(DeviceInfo *struct_ptr, const cJSON *json);
char *s2j_DeviceInfo(const DeviceInfo *struct_ptr, int formatted);
int c2s_DeviceInfo(const cJSON *json, DeviceInfo *struct_ptr);
int j2s_DeviceInfo(const char *json_str, DeviceInfo *struct_ptr);
int j2s_DeviceInfo_with_len(const char *json_str, size_t json_str_len, DeviceInfo *struct_ptr);
int f2s_DeviceInfo(const char *fine_name, DeviceInfo *struct_ptr);
int s2f_DeviceInfo(const char *fine_name, const DeviceInfo *struct_ptr);

cJSON *struct_to_json_DeviceCapabilitySet(const DeviceCapabilitySet *struct_ptr);
int json_to_struct_DeviceCapabilitySet(DeviceCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_DeviceCapabilitySet(const DeviceCapabilitySet *struct_ptr, int formatted);
int c2s_DeviceCapabilitySet(const cJSON *json, DeviceCapabilitySet *struct_ptr);
int j2s_DeviceCapabilitySet(const char *json_str, DeviceCapabilitySet *struct_ptr);
int j2s_DeviceCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                     DeviceCapabilitySet *struct_ptr);
int f2s_DeviceCapabilitySet(const char *fine_name, DeviceCapabilitySet *struct_ptr);

cJSON *struct_to_json_DeviceTime(const DeviceTime *struct_ptr);
int json_to_struct_DeviceTime(DeviceTime *struct_ptr, const cJSON *json);
char *s2j_DeviceTime(const DeviceTime *struct_ptr, int formatted);
int c2s_DeviceTime(const cJSON *json, DeviceTime *struct_ptr);
int j2s_DeviceTime(const char *json_str, DeviceTime *struct_ptr);
int j2s_DeviceTime_with_len(const char *json_str, size_t json_str_len, DeviceTime *struct_ptr);
int json_to_struct_DeviceTimeKeyword(DeviceTimeKeyword *keyword, const cJSON *json);

cJSON *struct_to_json_AdvancedParameter(const AdvancedParameter *struct_ptr);
int json_to_struct_AdvancedParameter(AdvancedParameter *struct_ptr, const cJSON *json);
char *s2j_AdvancedParameter(const AdvancedParameter *struct_ptr, int formatted);
int c2s_AdvancedParameter(const cJSON *json, AdvancedParameter *struct_ptr);
int j2s_AdvancedParameter(const char *json_str, AdvancedParameter *struct_ptr);
int j2s_AdvancedParameter_with_len(const char *json_str, size_t json_str_len,
                                   AdvancedParameter *struct_ptr);
int f2s_AdvancedParameter(const char *fine_name, AdvancedParameter *struct_ptr);
int s2f_AdvancedParameter(const char *fine_name, const AdvancedParameter *struct_ptr);

cJSON *struct_to_json_TimeZone(const TimeZone *struct_ptr);
int json_to_struct_TimeZone(TimeZone *struct_ptr, const cJSON *json);
char *s2j_array_TimeZone(const TimeZone *struct_array, uint32_t struct_array_size, int formatted);
int c2s_array_TimeZone(const cJSON *json, TimeZone *struct_array, uint32_t *struct_array_size);
int j2s_array_TimeZone(const char *json_str, TimeZone *struct_array, uint32_t *struct_array_size);
int j2s_array_TimeZone_with_len(const char *json_str, size_t json_str_len, TimeZone *struct_array,
                                uint32_t *struct_array_size);
int f2s_array_TimeZone(const char *fine_name, TimeZone *struct_array, uint32_t *struct_array_size);

cJSON *struct_to_json_TimeZoneParameter(const TimeZoneParameter *struct_ptr);
int json_to_struct_TimeZoneParameter(TimeZoneParameter *struct_ptr, const cJSON *json);
char *s2j_TimeZoneParameter(const TimeZoneParameter *struct_ptr, int formatted);
int c2s_TimeZoneParameter(const cJSON *json, TimeZoneParameter *struct_ptr);
int j2s_TimeZoneParameter(const char *json_str, TimeZoneParameter *struct_ptr);
int j2s_TimeZoneParameter_with_len(const char *json_str, size_t json_str_len,
                                   TimeZoneParameter *struct_ptr);
int f2s_TimeZoneParameter(const char *fine_name, TimeZoneParameter *struct_ptr);
int s2f_TimeZoneParameter(const char *fine_name, const TimeZoneParameter *struct_ptr);

cJSON *struct_to_json_NTPServer(const NTPServer *struct_ptr);
int json_to_struct_NTPServer(NTPServer *struct_ptr, const cJSON *json);
char *s2j_array_NTPServer(const NTPServer *struct_array, uint32_t struct_array_size, int formatted);
int c2s_array_NTPServer(const cJSON *json, NTPServer *struct_array, uint32_t *struct_array_size);
int j2s_array_NTPServer(const char *json_str, NTPServer *struct_array, uint32_t *struct_array_size);
int j2s_array_NTPServer_with_len(const char *json_str, size_t json_str_len, NTPServer *struct_array,
                                 uint32_t *struct_array_size);
int f2s_array_NTPServer(const char *fine_name, NTPServer *struct_array,
                        uint32_t *struct_array_size);

cJSON *struct_to_json_NTPParameter(const NTPParameter *struct_ptr);
int json_to_struct_NTPParameter(NTPParameter *struct_ptr, const cJSON *json);
char *s2j_NTPParameter(const NTPParameter *struct_ptr, int formatted);
int c2s_NTPParameter(const cJSON *json, NTPParameter *struct_ptr);
int j2s_NTPParameter(const char *json_str, NTPParameter *struct_ptr);
int j2s_NTPParameter_with_len(const char *json_str, size_t json_str_len, NTPParameter *struct_ptr);
int f2s_NTPParameter(const char *fine_name, NTPParameter *struct_ptr);
int s2f_NTPParameter(const char *fine_name, const NTPParameter *struct_ptr);

cJSON *struct_to_json_CrontabCapabilitySet(const CrontabCapabilitySet *struct_ptr);
int json_to_struct_CrontabCapabilitySet(CrontabCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_CrontabCapabilitySet(const CrontabCapabilitySet *struct_ptr, int formatted);
int c2s_CrontabCapabilitySet(const cJSON *json, CrontabCapabilitySet *struct_ptr);
int j2s_CrontabCapabilitySet(const char *json_str, CrontabCapabilitySet *struct_ptr);
int j2s_CrontabCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                      CrontabCapabilitySet *struct_ptr);
int f2s_CrontabCapabilitySet(const char *fine_name, CrontabCapabilitySet *struct_ptr);

cJSON *struct_to_json_CrontabParameter(const CrontabParameter *struct_ptr);
int json_to_struct_CrontabParameter(CrontabParameter *struct_ptr, const cJSON *json);
char *s2j_array_CrontabParameter(const CrontabParameter *struct_array, uint32_t struct_array_size,
                                 int formatted);
int c2s_array_CrontabParameter(const cJSON *json, CrontabParameter *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_CrontabParameter(const char *json_str, CrontabParameter *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_CrontabParameter_with_len(const char *json_str, size_t json_str_len,
                                        CrontabParameter *struct_array,
                                        uint32_t *struct_array_size);
int c2s_array_update_CrontabParameter(const cJSON *json, CrontabParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_update_CrontabParameter(const char *json_str, CrontabParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_update_CrontabParameter_with_len(const char *json_str, size_t json_str_len,
                                               CrontabParameter *struct_array,
                                               uint32_t *struct_array_size);
int json_to_struct_CrontabParameterKeyword(CrontabParameterKeyword *keyword, const cJSON *json);
int json_to_struct_GetCrontabParameterKeyword(uint32_t *Index, const cJSON *json);
int f2s_array_CrontabParameter(const char *fine_name, CrontabParameter *struct_array,
                               uint32_t *struct_array_size);
int s2f_array_CrontabParameter(const char *fine_name, const CrontabParameter *struct_array,
                               uint32_t struct_array_size);

/* Users and passwords.  The family sets follow the use of each record: a
 * request is only read from a tree, a result only written; the emitters and
 * readers of all six exist all the same. */
cJSON *struct_to_json_VerifyPasswordParameter(const VerifyPasswordParameter *struct_ptr);
int json_to_struct_VerifyPasswordParameter(VerifyPasswordParameter *struct_ptr, const cJSON *json);
char *s2j_VerifyPasswordParameter(const VerifyPasswordParameter *struct_ptr, int formatted);
int c2s_VerifyPasswordParameter(const cJSON *json, VerifyPasswordParameter *struct_ptr);

cJSON *struct_to_json_VerifyPasswordResult(const VerifyPasswordResult *struct_ptr);
int json_to_struct_VerifyPasswordResult(VerifyPasswordResult *struct_ptr, const cJSON *json);
char *s2j_VerifyPasswordResult(const VerifyPasswordResult *struct_ptr, int formatted);
int c2s_VerifyPasswordResult(const cJSON *json, VerifyPasswordResult *struct_ptr);

cJSON *struct_to_json_CreateUserParameter(const CreateUserParameter *struct_ptr);
int json_to_struct_CreateUserParameter(CreateUserParameter *struct_ptr, const cJSON *json);
int c2s_CreateUserParameter(const cJSON *json, CreateUserParameter *struct_ptr);
char *s2j_array_CreateUserParameter(const CreateUserParameter *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_CreateUserParameter(const cJSON *json, CreateUserParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_CreateUserParameter(const char *json_str, CreateUserParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_CreateUserParameter_with_len(const char *json_str, size_t json_str_len,
                                           CreateUserParameter *struct_array,
                                           uint32_t *struct_array_size);
int f2s_array_CreateUserParameter(const char *fine_name, CreateUserParameter *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_CreateUserParameter(const char *fine_name, const CreateUserParameter *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_DeleteUserParameter(const DeleteUserParameter *struct_ptr);
int json_to_struct_DeleteUserParameter(DeleteUserParameter *struct_ptr, const cJSON *json);
int c2s_DeleteUserParameter(const cJSON *json, DeleteUserParameter *struct_ptr);

cJSON *struct_to_json_ModifyPasswordParameter(const ModifyPasswordParameter *struct_ptr);
int json_to_struct_ModifyPasswordParameter(ModifyPasswordParameter *struct_ptr, const cJSON *json);
int c2s_ModifyPasswordParameter(const cJSON *json, ModifyPasswordParameter *struct_ptr);

cJSON *struct_to_json_UserList(const UserList *struct_ptr);
int json_to_struct_UserList(UserList *struct_ptr, const cJSON *json);
char *s2j_array_UserList(const UserList *struct_array, uint32_t struct_array_size, int formatted);

/* ======================================================================
 * Media input and encoding records
 * ====================================================================== */

/* Video input: all five are arrays. */
cJSON *struct_to_json_VideoInputCapabilitySet(const VideoInputCapabilitySet *struct_ptr);
int json_to_struct_VideoInputCapabilitySet(VideoInputCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_array_VideoInputCapabilitySet(const VideoInputCapabilitySet *struct_array,
                                        uint32_t struct_array_size, int formatted);
int c2s_array_VideoInputCapabilitySet(const cJSON *json, VideoInputCapabilitySet *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_VideoInputCapabilitySet(const char *json_str, VideoInputCapabilitySet *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_VideoInputCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                               VideoInputCapabilitySet *struct_array,
                                               uint32_t *struct_array_size);
int f2s_array_VideoInputCapabilitySet(const char *fine_name, VideoInputCapabilitySet *struct_array,
                                      uint32_t *struct_array_size);

cJSON *struct_to_json_VideoInputInterface(const VideoInputInterface *struct_ptr);
int json_to_struct_VideoInputInterface(VideoInputInterface *struct_ptr, const cJSON *json);
char *s2j_array_VideoInputInterface(const VideoInputInterface *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_VideoInputInterface(const cJSON *json, VideoInputInterface *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_VideoInputInterface(const char *json_str, VideoInputInterface *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_VideoInputInterface_with_len(const char *json_str, size_t json_str_len,
                                           VideoInputInterface *struct_array,
                                           uint32_t *struct_array_size);
int f2s_array_VideoInputInterface(const char *fine_name, VideoInputInterface *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_VideoInputInterface(const char *fine_name, const VideoInputInterface *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_VideoInputParameter(const VideoInputParameter *struct_ptr);
int json_to_struct_VideoInputParameter(VideoInputParameter *struct_ptr, const cJSON *json);
char *s2j_array_VideoInputParameter(const VideoInputParameter *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_VideoInputParameter(const cJSON *json, VideoInputParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_VideoInputParameter(const char *json_str, VideoInputParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_VideoInputParameter_with_len(const char *json_str, size_t json_str_len,
                                           VideoInputParameter *struct_array,
                                           uint32_t *struct_array_size);
int c2s_array_update_VideoInputParameter(const cJSON *json, VideoInputParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_VideoInputParameter(const char *json_str, VideoInputParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_VideoInputParameter_with_len(const char *json_str, size_t json_str_len,
                                                  VideoInputParameter *struct_array,
                                                  uint32_t *struct_array_size);
int json_to_struct_VideoInputParameterKeyword(VideoInputParameterKeyword *keyword,
                                              const cJSON *json);
int json_to_struct_GetVideoInputParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_VideoInputParameter(const char *fine_name, VideoInputParameter *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_VideoInputParameter(const char *fine_name, const VideoInputParameter *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_VideoInputStatus(const VideoInputStatus *struct_ptr);
int json_to_struct_VideoInputStatus(VideoInputStatus *struct_ptr, const cJSON *json);
char *s2j_array_VideoInputStatus(const VideoInputStatus *struct_array, uint32_t struct_array_size,
                                 int formatted);
int c2s_array_VideoInputStatus(const cJSON *json, VideoInputStatus *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_VideoInputStatus(const char *json_str, VideoInputStatus *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_VideoInputStatus_with_len(const char *json_str, size_t json_str_len,
                                        VideoInputStatus *struct_array,
                                        uint32_t *struct_array_size);
int json_to_struct_GetVideoInputStatusKeyword(char InterfaceName[64], const cJSON *json);

cJSON *struct_to_json_VideoInputVGAParameter(const VideoInputVGAParameter *struct_ptr);
int json_to_struct_VideoInputVGAParameter(VideoInputVGAParameter *struct_ptr, const cJSON *json);
char *s2j_array_VideoInputVGAParameter(const VideoInputVGAParameter *struct_array,
                                       uint32_t struct_array_size, int formatted);
int c2s_array_VideoInputVGAParameter(const cJSON *json, VideoInputVGAParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_VideoInputVGAParameter(const char *json_str, VideoInputVGAParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_VideoInputVGAParameter_with_len(const char *json_str, size_t json_str_len,
                                              VideoInputVGAParameter *struct_array,
                                              uint32_t *struct_array_size);
int c2s_array_update_VideoInputVGAParameter(const cJSON *json, VideoInputVGAParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_VideoInputVGAParameter(const char *json_str,
                                            VideoInputVGAParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_VideoInputVGAParameter_with_len(const char *json_str, size_t json_str_len,
                                                     VideoInputVGAParameter *struct_array,
                                                     uint32_t *struct_array_size);
int json_to_struct_VideoInputVGAParameterKeyword(VideoInputVGAParameterKeyword *keyword,
                                                 const cJSON *json);
int json_to_struct_GetVideoInputVGAParameterKeyword(char InterfaceName[64], const cJSON *json);

/* Video encoding.  The keyword reader of VideoEncodeParameter reads Channel
 * and StreamIndex; its single-key reader Channel alone. */
cJSON *struct_to_json_VideoEncodeCapabilitySet(const VideoEncodeCapabilitySet *struct_ptr);
int json_to_struct_VideoEncodeCapabilitySet(VideoEncodeCapabilitySet *struct_ptr,
                                            const cJSON *json);
char *s2j_array_VideoEncodeCapabilitySet(const VideoEncodeCapabilitySet *struct_array,
                                         uint32_t struct_array_size, int formatted);
int c2s_array_VideoEncodeCapabilitySet(const cJSON *json, VideoEncodeCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_VideoEncodeCapabilitySet(const char *json_str, VideoEncodeCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_VideoEncodeCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                                VideoEncodeCapabilitySet *struct_array,
                                                uint32_t *struct_array_size);
int f2s_array_VideoEncodeCapabilitySet(const char *fine_name,
                                       VideoEncodeCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);

cJSON *struct_to_json_VideoEncodeParameter(const VideoEncodeParameter *struct_ptr);
int json_to_struct_VideoEncodeParameter(VideoEncodeParameter *struct_ptr, const cJSON *json);
char *s2j_array_VideoEncodeParameter(const VideoEncodeParameter *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_VideoEncodeParameter(const cJSON *json, VideoEncodeParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_VideoEncodeParameter(const char *json_str, VideoEncodeParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_VideoEncodeParameter_with_len(const char *json_str, size_t json_str_len,
                                            VideoEncodeParameter *struct_array,
                                            uint32_t *struct_array_size);
int c2s_array_update_VideoEncodeParameter(const cJSON *json, VideoEncodeParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_VideoEncodeParameter(const char *json_str, VideoEncodeParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_VideoEncodeParameter_with_len(const char *json_str, size_t json_str_len,
                                                   VideoEncodeParameter *struct_array,
                                                   uint32_t *struct_array_size);
int json_to_struct_VideoEncodeParameterKeyword(VideoEncodeParameterKeyword *keyword,
                                               const cJSON *json);
int json_to_struct_GetVideoEncodeParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_VideoEncodeParameter(const char *fine_name, VideoEncodeParameter *struct_array,
                                   uint32_t *struct_array_size);
int s2f_array_VideoEncodeParameter(const char *fine_name, const VideoEncodeParameter *struct_array,
                                   uint32_t struct_array_size);

cJSON *struct_to_json_RequestIDRParameter(const RequestIDRParameter *struct_ptr);
int json_to_struct_RequestIDRParameter(RequestIDRParameter *struct_ptr, const cJSON *json);
char *s2j_RequestIDRParameter(const RequestIDRParameter *struct_ptr, int formatted);
int c2s_RequestIDRParameter(const cJSON *json, RequestIDRParameter *struct_ptr);
int j2s_RequestIDRParameter(const char *json_str, RequestIDRParameter *struct_ptr);
int j2s_RequestIDRParameter_with_len(const char *json_str, size_t json_str_len,
                                     RequestIDRParameter *struct_ptr);

/* Encoder OSD.  The keyword reader of VideoEncodeOSDParameter reads Channel
 * and Index; its single-key reader Channel alone. */
cJSON *struct_to_json_VideoEncodeOSDCapabilitySet(const VideoEncodeOSDCapabilitySet *struct_ptr);
int json_to_struct_VideoEncodeOSDCapabilitySet(VideoEncodeOSDCapabilitySet *struct_ptr,
                                               const cJSON *json);
char *s2j_VideoEncodeOSDCapabilitySet(const VideoEncodeOSDCapabilitySet *struct_ptr, int formatted);
int c2s_VideoEncodeOSDCapabilitySet(const cJSON *json, VideoEncodeOSDCapabilitySet *struct_ptr);
int j2s_VideoEncodeOSDCapabilitySet(const char *json_str, VideoEncodeOSDCapabilitySet *struct_ptr);
int j2s_VideoEncodeOSDCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                             VideoEncodeOSDCapabilitySet *struct_ptr);
int f2s_VideoEncodeOSDCapabilitySet(const char *fine_name, VideoEncodeOSDCapabilitySet *struct_ptr);

cJSON *struct_to_json_VideoEncodeOSDParameter(const VideoEncodeOSDParameter *struct_ptr);
int json_to_struct_VideoEncodeOSDParameter(VideoEncodeOSDParameter *struct_ptr, const cJSON *json);
char *s2j_array_VideoEncodeOSDParameter(const VideoEncodeOSDParameter *struct_array,
                                        uint32_t struct_array_size, int formatted);
int c2s_array_VideoEncodeOSDParameter(const cJSON *json, VideoEncodeOSDParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_VideoEncodeOSDParameter(const char *json_str, VideoEncodeOSDParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_VideoEncodeOSDParameter_with_len(const char *json_str, size_t json_str_len,
                                               VideoEncodeOSDParameter *struct_array,
                                               uint32_t *struct_array_size);
int c2s_array_update_VideoEncodeOSDParameter(const cJSON *json,
                                             VideoEncodeOSDParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_VideoEncodeOSDParameter(const char *json_str,
                                             VideoEncodeOSDParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_VideoEncodeOSDParameter_with_len(const char *json_str, size_t json_str_len,
                                                      VideoEncodeOSDParameter *struct_array,
                                                      uint32_t *struct_array_size);
int json_to_struct_VideoEncodeOSDParameterKeyword(VideoEncodeOSDParameterKeyword *keyword,
                                                  const cJSON *json);
int json_to_struct_GetVideoEncodeOSDParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_VideoEncodeOSDParameter(const char *fine_name, VideoEncodeOSDParameter *struct_array,
                                      uint32_t *struct_array_size);
int s2f_array_VideoEncodeOSDParameter(const char *fine_name,
                                      const VideoEncodeOSDParameter *struct_array,
                                      uint32_t struct_array_size);

/* Audio input and encoding. */
cJSON *struct_to_json_AudioInputCapabilitySet(const AudioInputCapabilitySet *struct_ptr);
int json_to_struct_AudioInputCapabilitySet(AudioInputCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_array_AudioInputCapabilitySet(const AudioInputCapabilitySet *struct_array,
                                        uint32_t struct_array_size, int formatted);
int c2s_array_AudioInputCapabilitySet(const cJSON *json, AudioInputCapabilitySet *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_AudioInputCapabilitySet(const char *json_str, AudioInputCapabilitySet *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_AudioInputCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                               AudioInputCapabilitySet *struct_array,
                                               uint32_t *struct_array_size);
int f2s_array_AudioInputCapabilitySet(const char *fine_name, AudioInputCapabilitySet *struct_array,
                                      uint32_t *struct_array_size);

cJSON *struct_to_json_AudioInputInterface(const AudioInputInterface *struct_ptr);
int json_to_struct_AudioInputInterface(AudioInputInterface *struct_ptr, const cJSON *json);
char *s2j_array_AudioInputInterface(const AudioInputInterface *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_AudioInputInterface(const cJSON *json, AudioInputInterface *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_AudioInputInterface(const char *json_str, AudioInputInterface *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_AudioInputInterface_with_len(const char *json_str, size_t json_str_len,
                                           AudioInputInterface *struct_array,
                                           uint32_t *struct_array_size);
int f2s_array_AudioInputInterface(const char *fine_name, AudioInputInterface *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_AudioInputInterface(const char *fine_name, const AudioInputInterface *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_AudioInputInterfaceParameter(const AudioInputInterfaceParameter *struct_ptr);
int json_to_struct_AudioInputInterfaceParameter(AudioInputInterfaceParameter *struct_ptr,
                                                const cJSON *json);
char *s2j_array_AudioInputInterfaceParameter(const AudioInputInterfaceParameter *struct_array,
                                             uint32_t struct_array_size, int formatted);
int c2s_array_AudioInputInterfaceParameter(const cJSON *json,
                                           AudioInputInterfaceParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_AudioInputInterfaceParameter(const char *json_str,
                                           AudioInputInterfaceParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_AudioInputInterfaceParameter_with_len(const char *json_str, size_t json_str_len,
                                                    AudioInputInterfaceParameter *struct_array,
                                                    uint32_t *struct_array_size);
int c2s_array_update_AudioInputInterfaceParameter(const cJSON *json,
                                                  AudioInputInterfaceParameter *struct_array,
                                                  uint32_t *struct_array_size);
int j2s_array_update_AudioInputInterfaceParameter(const char *json_str,
                                                  AudioInputInterfaceParameter *struct_array,
                                                  uint32_t *struct_array_size);
int j2s_array_update_AudioInputInterfaceParameter_with_len(const char *json_str,
                                                           size_t json_str_len,
                                                           AudioInputInterfaceParameter *struct_array,
                                                           uint32_t *struct_array_size);
int json_to_struct_AudioInputInterfaceParameterKeyword(AudioInputInterfaceParameterKeyword *keyword,
                                                       const cJSON *json);
int json_to_struct_GetAudioInputInterfaceParameterKeyword(char InterfaceName[64],
                                                          const cJSON *json);
int f2s_array_AudioInputInterfaceParameter(const char *fine_name,
                                           AudioInputInterfaceParameter *struct_array,
                                           uint32_t *struct_array_size);
int s2f_array_AudioInputInterfaceParameter(const char *fine_name,
                                           const AudioInputInterfaceParameter *struct_array,
                                           uint32_t struct_array_size);

cJSON *struct_to_json_AudioInputParameter(const AudioInputParameter *struct_ptr);
int json_to_struct_AudioInputParameter(AudioInputParameter *struct_ptr, const cJSON *json);
char *s2j_array_AudioInputParameter(const AudioInputParameter *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_AudioInputParameter(const cJSON *json, AudioInputParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_AudioInputParameter(const char *json_str, AudioInputParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_AudioInputParameter_with_len(const char *json_str, size_t json_str_len,
                                           AudioInputParameter *struct_array,
                                           uint32_t *struct_array_size);
int c2s_array_update_AudioInputParameter(const cJSON *json, AudioInputParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_AudioInputParameter(const char *json_str, AudioInputParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_AudioInputParameter_with_len(const char *json_str, size_t json_str_len,
                                                  AudioInputParameter *struct_array,
                                                  uint32_t *struct_array_size);
int json_to_struct_AudioInputParameterKeyword(AudioInputParameterKeyword *keyword,
                                              const cJSON *json);
int json_to_struct_GetAudioInputParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_AudioInputParameter(const char *fine_name, AudioInputParameter *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_AudioInputParameter(const char *fine_name, const AudioInputParameter *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_AudioInputStatus(const AudioInputStatus *struct_ptr);
int json_to_struct_AudioInputStatus(AudioInputStatus *struct_ptr, const cJSON *json);
char *s2j_array_AudioInputStatus(const AudioInputStatus *struct_array, uint32_t struct_array_size,
                                 int formatted);
int c2s_array_AudioInputStatus(const cJSON *json, AudioInputStatus *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_AudioInputStatus(const char *json_str, AudioInputStatus *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_AudioInputStatus_with_len(const char *json_str, size_t json_str_len,
                                        AudioInputStatus *struct_array,
                                        uint32_t *struct_array_size);
int json_to_struct_GetAudioInputStatusKeyword(char InterfaceName[64], const cJSON *json);

cJSON *struct_to_json_AudioEncodeCapabilitySet(const AudioEncodeCapabilitySet *struct_ptr);
int json_to_struct_AudioEncodeCapabilitySet(AudioEncodeCapabilitySet *struct_ptr,
                                            const cJSON *json);
char *s2j_AudioEncodeCapabilitySet(const AudioEncodeCapabilitySet *struct_ptr, int formatted);
int c2s_AudioEncodeCapabilitySet(const cJSON *json, AudioEncodeCapabilitySet *struct_ptr);
int j2s_AudioEncodeCapabilitySet(const char *json_str, AudioEncodeCapabilitySet *struct_ptr);
int j2s_AudioEncodeCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                          AudioEncodeCapabilitySet *struct_ptr);
int f2s_AudioEncodeCapabilitySet(const char *fine_name, AudioEncodeCapabilitySet *struct_ptr);

cJSON *struct_to_json_AudioEncodeParameter(const AudioEncodeParameter *struct_ptr);
int json_to_struct_AudioEncodeParameter(AudioEncodeParameter *struct_ptr, const cJSON *json);
char *s2j_array_AudioEncodeParameter(const AudioEncodeParameter *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_AudioEncodeParameter(const cJSON *json, AudioEncodeParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_AudioEncodeParameter(const char *json_str, AudioEncodeParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_AudioEncodeParameter_with_len(const char *json_str, size_t json_str_len,
                                            AudioEncodeParameter *struct_array,
                                            uint32_t *struct_array_size);
int c2s_array_update_AudioEncodeParameter(const cJSON *json, AudioEncodeParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_AudioEncodeParameter(const char *json_str, AudioEncodeParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_AudioEncodeParameter_with_len(const char *json_str, size_t json_str_len,
                                                   AudioEncodeParameter *struct_array,
                                                   uint32_t *struct_array_size);
int json_to_struct_AudioEncodeParameterKeyword(AudioEncodeParameterKeyword *keyword,
                                               const cJSON *json);
int json_to_struct_GetAudioEncodeParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_AudioEncodeParameter(const char *fine_name, AudioEncodeParameter *struct_array,
                                   uint32_t *struct_array_size);
int s2f_array_AudioEncodeParameter(const char *fine_name, const AudioEncodeParameter *struct_array,
                                   uint32_t struct_array_size);

/* ======================================================================
 * Streaming records
 * ====================================================================== */

/* Capability sets are loaded from files and never saved. */
cJSON *struct_to_json_StreamingOutputCapabilitySet(const StreamingOutputCapabilitySet *struct_ptr);
int json_to_struct_StreamingOutputCapabilitySet(StreamingOutputCapabilitySet *struct_ptr,
                                                const cJSON *json);
char *s2j_StreamingOutputCapabilitySet(const StreamingOutputCapabilitySet *struct_ptr,
                                       int formatted);
int c2s_StreamingOutputCapabilitySet(const cJSON *json, StreamingOutputCapabilitySet *struct_ptr);
int j2s_StreamingOutputCapabilitySet(const char *json_str,
                                     StreamingOutputCapabilitySet *struct_ptr);
int j2s_StreamingOutputCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                              StreamingOutputCapabilitySet *struct_ptr);
int f2s_StreamingOutputCapabilitySet(const char *fine_name,
                                     StreamingOutputCapabilitySet *struct_ptr);

cJSON *struct_to_json_RtspCapabilitySet(const RtspCapabilitySet *struct_ptr);
int json_to_struct_RtspCapabilitySet(RtspCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_RtspCapabilitySet(const RtspCapabilitySet *struct_ptr, int formatted);
int c2s_RtspCapabilitySet(const cJSON *json, RtspCapabilitySet *struct_ptr);
int j2s_RtspCapabilitySet(const char *json_str, RtspCapabilitySet *struct_ptr);
int j2s_RtspCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                   RtspCapabilitySet *struct_ptr);
int f2s_RtspCapabilitySet(const char *fine_name, RtspCapabilitySet *struct_ptr);

cJSON *struct_to_json_RtmpCapabilitySet(const RtmpCapabilitySet *struct_ptr);
int json_to_struct_RtmpCapabilitySet(RtmpCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_RtmpCapabilitySet(const RtmpCapabilitySet *struct_ptr, int formatted);
int c2s_RtmpCapabilitySet(const cJSON *json, RtmpCapabilitySet *struct_ptr);
int j2s_RtmpCapabilitySet(const char *json_str, RtmpCapabilitySet *struct_ptr);
int j2s_RtmpCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                   RtmpCapabilitySet *struct_ptr);
int f2s_RtmpCapabilitySet(const char *fine_name, RtmpCapabilitySet *struct_ptr);

cJSON *struct_to_json_UdpCapabilitySet(const UdpCapabilitySet *struct_ptr);
int json_to_struct_UdpCapabilitySet(UdpCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_UdpCapabilitySet(const UdpCapabilitySet *struct_ptr, int formatted);
int c2s_UdpCapabilitySet(const cJSON *json, UdpCapabilitySet *struct_ptr);
int j2s_UdpCapabilitySet(const char *json_str, UdpCapabilitySet *struct_ptr);
int j2s_UdpCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                  UdpCapabilitySet *struct_ptr);
int f2s_UdpCapabilitySet(const char *fine_name, UdpCapabilitySet *struct_ptr);

cJSON *struct_to_json_HttpStreamingCapabilitySet(const HttpStreamingCapabilitySet *struct_ptr);
int json_to_struct_HttpStreamingCapabilitySet(HttpStreamingCapabilitySet *struct_ptr,
                                              const cJSON *json);
char *s2j_HttpStreamingCapabilitySet(const HttpStreamingCapabilitySet *struct_ptr, int formatted);
int c2s_HttpStreamingCapabilitySet(const cJSON *json, HttpStreamingCapabilitySet *struct_ptr);
int j2s_HttpStreamingCapabilitySet(const char *json_str, HttpStreamingCapabilitySet *struct_ptr);
int j2s_HttpStreamingCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                            HttpStreamingCapabilitySet *struct_ptr);
int f2s_HttpStreamingCapabilitySet(const char *fine_name, HttpStreamingCapabilitySet *struct_ptr);

cJSON *struct_to_json_SrtStreamingCapabilitySet(const SrtStreamingCapabilitySet *struct_ptr);
int json_to_struct_SrtStreamingCapabilitySet(SrtStreamingCapabilitySet *struct_ptr,
                                             const cJSON *json);
char *s2j_SrtStreamingCapabilitySet(const SrtStreamingCapabilitySet *struct_ptr, int formatted);
int c2s_SrtStreamingCapabilitySet(const cJSON *json, SrtStreamingCapabilitySet *struct_ptr);
int j2s_SrtStreamingCapabilitySet(const char *json_str, SrtStreamingCapabilitySet *struct_ptr);
int j2s_SrtStreamingCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                           SrtStreamingCapabilitySet *struct_ptr);
int f2s_SrtStreamingCapabilitySet(const char *fine_name, SrtStreamingCapabilitySet *struct_ptr);

cJSON *struct_to_json_StreamingOutputParameter(const StreamingOutputParameter *struct_ptr);
int json_to_struct_StreamingOutputParameter(StreamingOutputParameter *struct_ptr,
                                            const cJSON *json);
char *s2j_StreamingOutputParameter(const StreamingOutputParameter *struct_ptr, int formatted);
int c2s_StreamingOutputParameter(const cJSON *json, StreamingOutputParameter *struct_ptr);
int j2s_StreamingOutputParameter(const char *json_str, StreamingOutputParameter *struct_ptr);
int j2s_StreamingOutputParameter_with_len(const char *json_str, size_t json_str_len,
                                          StreamingOutputParameter *struct_ptr);
int f2s_StreamingOutputParameter(const char *fine_name, StreamingOutputParameter *struct_ptr);
int s2f_StreamingOutputParameter(const char *fine_name, const StreamingOutputParameter *struct_ptr);

/* Protocol streams exist only as array elements, keyed by Channel and Index. */
cJSON *struct_to_json_RtspStreamingParameter(const RtspStreamingParameter *struct_ptr);
int json_to_struct_RtspStreamingParameter(RtspStreamingParameter *struct_ptr, const cJSON *json);
char *s2j_array_RtspStreamingParameter(const RtspStreamingParameter *struct_array,
                                       uint32_t struct_array_size, int formatted);
int c2s_array_RtspStreamingParameter(const cJSON *json, RtspStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_RtspStreamingParameter(const char *json_str, RtspStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_RtspStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                              RtspStreamingParameter *struct_array,
                                              uint32_t *struct_array_size);
int c2s_array_update_RtspStreamingParameter(const cJSON *json, RtspStreamingParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_RtspStreamingParameter(const char *json_str,
                                            RtspStreamingParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_RtspStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                                     RtspStreamingParameter *struct_array,
                                                     uint32_t *struct_array_size);
int json_to_struct_RtspStreamingParameterKeyword(RtspStreamingParameterKeyword *keyword,
                                                 const cJSON *json);
int json_to_struct_GetRtspStreamingParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_RtspStreamingParameter(const char *fine_name, RtspStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int s2f_array_RtspStreamingParameter(const char *fine_name,
                                     const RtspStreamingParameter *struct_array,
                                     uint32_t struct_array_size);

cJSON *struct_to_json_RtmpStreamingParameter(const RtmpStreamingParameter *struct_ptr);
int json_to_struct_RtmpStreamingParameter(RtmpStreamingParameter *struct_ptr, const cJSON *json);
char *s2j_array_RtmpStreamingParameter(const RtmpStreamingParameter *struct_array,
                                       uint32_t struct_array_size, int formatted);
int c2s_array_RtmpStreamingParameter(const cJSON *json, RtmpStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_RtmpStreamingParameter(const char *json_str, RtmpStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_RtmpStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                              RtmpStreamingParameter *struct_array,
                                              uint32_t *struct_array_size);
int c2s_array_update_RtmpStreamingParameter(const cJSON *json, RtmpStreamingParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_RtmpStreamingParameter(const char *json_str,
                                            RtmpStreamingParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_RtmpStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                                     RtmpStreamingParameter *struct_array,
                                                     uint32_t *struct_array_size);
int json_to_struct_RtmpStreamingParameterKeyword(RtmpStreamingParameterKeyword *keyword,
                                                 const cJSON *json);
int json_to_struct_GetRtmpStreamingParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_RtmpStreamingParameter(const char *fine_name, RtmpStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int s2f_array_RtmpStreamingParameter(const char *fine_name,
                                     const RtmpStreamingParameter *struct_array,
                                     uint32_t struct_array_size);

cJSON *struct_to_json_UdpStreamingParameter(const UdpStreamingParameter *struct_ptr);
int json_to_struct_UdpStreamingParameter(UdpStreamingParameter *struct_ptr, const cJSON *json);
char *s2j_array_UdpStreamingParameter(const UdpStreamingParameter *struct_array,
                                      uint32_t struct_array_size, int formatted);
int c2s_array_UdpStreamingParameter(const cJSON *json, UdpStreamingParameter *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_UdpStreamingParameter(const char *json_str, UdpStreamingParameter *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_UdpStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                             UdpStreamingParameter *struct_array,
                                             uint32_t *struct_array_size);
int c2s_array_update_UdpStreamingParameter(const cJSON *json, UdpStreamingParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_update_UdpStreamingParameter(const char *json_str,
                                           UdpStreamingParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_update_UdpStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                                    UdpStreamingParameter *struct_array,
                                                    uint32_t *struct_array_size);
int json_to_struct_UdpStreamingParameterKeyword(UdpStreamingParameterKeyword *keyword,
                                                const cJSON *json);
int json_to_struct_GetUdpStreamingParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_UdpStreamingParameter(const char *fine_name, UdpStreamingParameter *struct_array,
                                    uint32_t *struct_array_size);
int s2f_array_UdpStreamingParameter(const char *fine_name,
                                    const UdpStreamingParameter *struct_array,
                                    uint32_t struct_array_size);

cJSON *struct_to_json_HttpStreamingParameter(const HttpStreamingParameter *struct_ptr);
int json_to_struct_HttpStreamingParameter(HttpStreamingParameter *struct_ptr, const cJSON *json);
char *s2j_array_HttpStreamingParameter(const HttpStreamingParameter *struct_array,
                                       uint32_t struct_array_size, int formatted);
int c2s_array_HttpStreamingParameter(const cJSON *json, HttpStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_HttpStreamingParameter(const char *json_str, HttpStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_HttpStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                              HttpStreamingParameter *struct_array,
                                              uint32_t *struct_array_size);
int c2s_array_update_HttpStreamingParameter(const cJSON *json, HttpStreamingParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_HttpStreamingParameter(const char *json_str,
                                            HttpStreamingParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_update_HttpStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                                     HttpStreamingParameter *struct_array,
                                                     uint32_t *struct_array_size);
int json_to_struct_HttpStreamingParameterKeyword(HttpStreamingParameterKeyword *keyword,
                                                 const cJSON *json);
int json_to_struct_GetHttpStreamingParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_HttpStreamingParameter(const char *fine_name, HttpStreamingParameter *struct_array,
                                     uint32_t *struct_array_size);
int s2f_array_HttpStreamingParameter(const char *fine_name,
                                     const HttpStreamingParameter *struct_array,
                                     uint32_t struct_array_size);

cJSON *struct_to_json_SrtStreamingParameter(const SrtStreamingParameter *struct_ptr);
int json_to_struct_SrtStreamingParameter(SrtStreamingParameter *struct_ptr, const cJSON *json);
char *s2j_array_SrtStreamingParameter(const SrtStreamingParameter *struct_array,
                                      uint32_t struct_array_size, int formatted);
int c2s_array_SrtStreamingParameter(const cJSON *json, SrtStreamingParameter *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_SrtStreamingParameter(const char *json_str, SrtStreamingParameter *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_SrtStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                             SrtStreamingParameter *struct_array,
                                             uint32_t *struct_array_size);
int c2s_array_update_SrtStreamingParameter(const cJSON *json, SrtStreamingParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_update_SrtStreamingParameter(const char *json_str,
                                           SrtStreamingParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_update_SrtStreamingParameter_with_len(const char *json_str, size_t json_str_len,
                                                    SrtStreamingParameter *struct_array,
                                                    uint32_t *struct_array_size);
int json_to_struct_SrtStreamingParameterKeyword(SrtStreamingParameterKeyword *keyword,
                                                const cJSON *json);
int json_to_struct_GetSrtStreamingParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_SrtStreamingParameter(const char *fine_name, SrtStreamingParameter *struct_array,
                                    uint32_t *struct_array_size);
int s2f_array_SrtStreamingParameter(const char *fine_name,
                                    const SrtStreamingParameter *struct_array,
                                    uint32_t struct_array_size);

cJSON *struct_to_json_RtspServerParameter(const RtspServerParameter *struct_ptr);
int json_to_struct_RtspServerParameter(RtspServerParameter *struct_ptr, const cJSON *json);
char *s2j_RtspServerParameter(const RtspServerParameter *struct_ptr, int formatted);
int c2s_RtspServerParameter(const cJSON *json, RtspServerParameter *struct_ptr);
int j2s_RtspServerParameter(const char *json_str, RtspServerParameter *struct_ptr);
int j2s_RtspServerParameter_with_len(const char *json_str, size_t json_str_len,
                                     RtspServerParameter *struct_ptr);
int f2s_RtspServerParameter(const char *fine_name, RtspServerParameter *struct_ptr);
int s2f_RtspServerParameter(const char *fine_name, const RtspServerParameter *struct_ptr);

cJSON *struct_to_json_HttpStreamingServerParameter(const HttpStreamingServerParameter *struct_ptr);
int json_to_struct_HttpStreamingServerParameter(HttpStreamingServerParameter *struct_ptr,
                                                const cJSON *json);
char *s2j_HttpStreamingServerParameter(const HttpStreamingServerParameter *struct_ptr,
                                       int formatted);
int c2s_HttpStreamingServerParameter(const cJSON *json, HttpStreamingServerParameter *struct_ptr);
int j2s_HttpStreamingServerParameter(const char *json_str,
                                     HttpStreamingServerParameter *struct_ptr);
int j2s_HttpStreamingServerParameter_with_len(const char *json_str, size_t json_str_len,
                                              HttpStreamingServerParameter *struct_ptr);
int f2s_HttpStreamingServerParameter(const char *fine_name,
                                     HttpStreamingServerParameter *struct_ptr);
int s2f_HttpStreamingServerParameter(const char *fine_name,
                                     const HttpStreamingServerParameter *struct_ptr);

cJSON *struct_to_json_OnvifServerParameter(const OnvifServerParameter *struct_ptr);
int json_to_struct_OnvifServerParameter(OnvifServerParameter *struct_ptr, const cJSON *json);
char *s2j_OnvifServerParameter(const OnvifServerParameter *struct_ptr, int formatted);
int c2s_OnvifServerParameter(const cJSON *json, OnvifServerParameter *struct_ptr);
int j2s_OnvifServerParameter(const char *json_str, OnvifServerParameter *struct_ptr);
int j2s_OnvifServerParameter_with_len(const char *json_str, size_t json_str_len,
                                      OnvifServerParameter *struct_ptr);
int f2s_OnvifServerParameter(const char *fine_name, OnvifServerParameter *struct_ptr);
int s2f_OnvifServerParameter(const char *fine_name, const OnvifServerParameter *struct_ptr);

cJSON *struct_to_json_WebServerParameter(const WebServerParameter *struct_ptr);
int json_to_struct_WebServerParameter(WebServerParameter *struct_ptr, const cJSON *json);
char *s2j_WebServerParameter(const WebServerParameter *struct_ptr, int formatted);
int c2s_WebServerParameter(const cJSON *json, WebServerParameter *struct_ptr);
int j2s_WebServerParameter(const char *json_str, WebServerParameter *struct_ptr);
int j2s_WebServerParameter_with_len(const char *json_str, size_t json_str_len,
                                    WebServerParameter *struct_ptr);
int f2s_WebServerParameter(const char *fine_name, WebServerParameter *struct_ptr);
int s2f_WebServerParameter(const char *fine_name, const WebServerParameter *struct_ptr);

cJSON *struct_to_json_StreamingInputCapabilitySet(const StreamingInputCapabilitySet *struct_ptr);
int json_to_struct_StreamingInputCapabilitySet(StreamingInputCapabilitySet *struct_ptr,
                                               const cJSON *json);
char *s2j_StreamingInputCapabilitySet(const StreamingInputCapabilitySet *struct_ptr, int formatted);
int c2s_StreamingInputCapabilitySet(const cJSON *json, StreamingInputCapabilitySet *struct_ptr);
int j2s_StreamingInputCapabilitySet(const char *json_str, StreamingInputCapabilitySet *struct_ptr);
int j2s_StreamingInputCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                             StreamingInputCapabilitySet *struct_ptr);
int f2s_StreamingInputCapabilitySet(const char *fine_name, StreamingInputCapabilitySet *struct_ptr);

cJSON *struct_to_json_StreamingInputParameter(const StreamingInputParameter *struct_ptr);
int json_to_struct_StreamingInputParameter(StreamingInputParameter *struct_ptr, const cJSON *json);
char *s2j_array_StreamingInputParameter(const StreamingInputParameter *struct_array,
                                        uint32_t struct_array_size, int formatted);
int c2s_array_StreamingInputParameter(const cJSON *json, StreamingInputParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_StreamingInputParameter(const char *json_str, StreamingInputParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_StreamingInputParameter_with_len(const char *json_str, size_t json_str_len,
                                               StreamingInputParameter *struct_array,
                                               uint32_t *struct_array_size);
int c2s_array_update_StreamingInputParameter(const cJSON *json,
                                             StreamingInputParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_StreamingInputParameter(const char *json_str,
                                             StreamingInputParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_StreamingInputParameter_with_len(const char *json_str, size_t json_str_len,
                                                      StreamingInputParameter *struct_array,
                                                      uint32_t *struct_array_size);
int json_to_struct_StreamingInputParameterKeyword(StreamingInputParameterKeyword *keyword,
                                                  const cJSON *json);
int json_to_struct_GetStreamingInputParameterKeyword(uint32_t *Index, const cJSON *json);
int f2s_array_StreamingInputParameter(const char *fine_name, StreamingInputParameter *struct_array,
                                      uint32_t *struct_array_size);
int s2f_array_StreamingInputParameter(const char *fine_name,
                                      const StreamingInputParameter *struct_array,
                                      uint32_t struct_array_size);

/* A status: no keyed update and no file. */
cJSON *struct_to_json_StreamingInputStatus(const StreamingInputStatus *struct_ptr);
int json_to_struct_StreamingInputStatus(StreamingInputStatus *struct_ptr, const cJSON *json);
char *s2j_array_StreamingInputStatus(const StreamingInputStatus *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_StreamingInputStatus(const cJSON *json, StreamingInputStatus *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_StreamingInputStatus(const char *json_str, StreamingInputStatus *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_StreamingInputStatus_with_len(const char *json_str, size_t json_str_len,
                                            StreamingInputStatus *struct_array,
                                            uint32_t *struct_array_size);
int json_to_struct_GetStreamingInputStatusKeyword(uint32_t *Index, const cJSON *json);

cJSON *struct_to_json_StreamingInputStatusChange(const StreamingInputStatusChange *struct_ptr);
int json_to_struct_StreamingInputStatusChange(StreamingInputStatusChange *struct_ptr,
                                              const cJSON *json);
char *s2j_StreamingInputStatusChange(const StreamingInputStatusChange *struct_ptr, int formatted);
int c2s_StreamingInputStatusChange(const cJSON *json, StreamingInputStatusChange *struct_ptr);
int j2s_StreamingInputStatusChange(const char *json_str, StreamingInputStatusChange *struct_ptr);
int j2s_StreamingInputStatusChange_with_len(const char *json_str, size_t json_str_len,
                                            StreamingInputStatusChange *struct_ptr);

/* json_to_struct_StreamingInputUseCountKeyword reads the whole record as
 * json_to_struct_StreamingInputUseCount does, but with every key required:
 * an absent key fails like one of the wrong JSON type.  No family calls it. */
cJSON *struct_to_json_StreamingInputUseCount(const StreamingInputUseCount *struct_ptr);
int json_to_struct_StreamingInputUseCount(StreamingInputUseCount *struct_ptr, const cJSON *json);
char *s2j_StreamingInputUseCount(const StreamingInputUseCount *struct_ptr, int formatted);
int c2s_StreamingInputUseCount(const cJSON *json, StreamingInputUseCount *struct_ptr);
int j2s_StreamingInputUseCount(const char *json_str, StreamingInputUseCount *struct_ptr);
int j2s_StreamingInputUseCount_with_len(const char *json_str, size_t json_str_len,
                                        StreamingInputUseCount *struct_ptr);
int json_to_struct_StreamingInputUseCountKeyword(StreamingInputUseCount *struct_ptr,
                                                 const cJSON *json);

/* ======================================================================
 * Network and serial records
 * ====================================================================== */

cJSON *struct_to_json_NetworkCapabilitySet(const NetworkCapabilitySet *struct_ptr);
int json_to_struct_NetworkCapabilitySet(NetworkCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_NetworkCapabilitySet(const NetworkCapabilitySet *struct_ptr, int formatted);
int c2s_NetworkCapabilitySet(const cJSON *json, NetworkCapabilitySet *struct_ptr);
int j2s_NetworkCapabilitySet(const char *json_str, NetworkCapabilitySet *struct_ptr);
int j2s_NetworkCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                      NetworkCapabilitySet *struct_ptr);
int f2s_NetworkCapabilitySet(const char *fine_name, NetworkCapabilitySet *struct_ptr);

cJSON *struct_to_json_NetworkInterface(const NetworkInterface *struct_ptr);
int json_to_struct_NetworkInterface(NetworkInterface *struct_ptr, const cJSON *json);
char *s2j_array_NetworkInterface(const NetworkInterface *struct_array, uint32_t struct_array_size,
                                 int formatted);
int c2s_array_NetworkInterface(const cJSON *json, NetworkInterface *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_NetworkInterface(const char *json_str, NetworkInterface *struct_array,
                               uint32_t *struct_array_size);
int j2s_array_NetworkInterface_with_len(const char *json_str, size_t json_str_len,
                                        NetworkInterface *struct_array,
                                        uint32_t *struct_array_size);
int f2s_array_NetworkInterface(const char *fine_name, NetworkInterface *struct_array,
                               uint32_t *struct_array_size);

cJSON *struct_to_json_NetworkInterfaceStatus(const NetworkInterfaceStatus *struct_ptr);
int json_to_struct_NetworkInterfaceStatus(NetworkInterfaceStatus *struct_ptr, const cJSON *json);
char *s2j_array_NetworkInterfaceStatus(const NetworkInterfaceStatus *struct_array,
                                       uint32_t struct_array_size, int formatted);
int c2s_array_NetworkInterfaceStatus(const cJSON *json, NetworkInterfaceStatus *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_NetworkInterfaceStatus(const char *json_str, NetworkInterfaceStatus *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_NetworkInterfaceStatus_with_len(const char *json_str, size_t json_str_len,
                                              NetworkInterfaceStatus *struct_array,
                                              uint32_t *struct_array_size);
int json_to_struct_GetNetworkInterfaceStatusKeyword(char InterfaceName[64], const cJSON *json);

cJSON *struct_to_json_NetworkLANParameter(const NetworkLANParameter *struct_ptr);
int json_to_struct_NetworkLANParameter(NetworkLANParameter *struct_ptr, const cJSON *json);
char *s2j_array_NetworkLANParameter(const NetworkLANParameter *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_NetworkLANParameter(const cJSON *json, NetworkLANParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_NetworkLANParameter(const char *json_str, NetworkLANParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_NetworkLANParameter_with_len(const char *json_str, size_t json_str_len,
                                           NetworkLANParameter *struct_array,
                                           uint32_t *struct_array_size);
int c2s_array_update_NetworkLANParameter(const cJSON *json, NetworkLANParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_NetworkLANParameter(const char *json_str, NetworkLANParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_NetworkLANParameter_with_len(const char *json_str, size_t json_str_len,
                                                  NetworkLANParameter *struct_array,
                                                  uint32_t *struct_array_size);
int json_to_struct_NetworkLANParameterKeyword(NetworkLANParameterKeyword *keyword,
                                              const cJSON *json);
int json_to_struct_GetNetworkLANParameterKeyword(char InterfaceName[64], const cJSON *json);
int f2s_array_NetworkLANParameter(const char *fine_name, NetworkLANParameter *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_NetworkLANParameter(const char *fine_name, const NetworkLANParameter *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_NetworkRouteParameter(const NetworkRouteParameter *struct_ptr);
int json_to_struct_NetworkRouteParameter(NetworkRouteParameter *struct_ptr, const cJSON *json);
char *s2j_NetworkRouteParameter(const NetworkRouteParameter *struct_ptr, int formatted);
int c2s_NetworkRouteParameter(const cJSON *json, NetworkRouteParameter *struct_ptr);
int j2s_NetworkRouteParameter(const char *json_str, NetworkRouteParameter *struct_ptr);
int j2s_NetworkRouteParameter_with_len(const char *json_str, size_t json_str_len,
                                       NetworkRouteParameter *struct_ptr);
int f2s_NetworkRouteParameter(const char *fine_name, NetworkRouteParameter *struct_ptr);
int s2f_NetworkRouteParameter(const char *fine_name, const NetworkRouteParameter *struct_ptr);

cJSON *struct_to_json_NetworkWIFIParameter(const NetworkWIFIParameter *struct_ptr);
int json_to_struct_NetworkWIFIParameter(NetworkWIFIParameter *struct_ptr, const cJSON *json);
char *s2j_array_NetworkWIFIParameter(const NetworkWIFIParameter *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_NetworkWIFIParameter(const cJSON *json, NetworkWIFIParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_NetworkWIFIParameter(const char *json_str, NetworkWIFIParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_NetworkWIFIParameter_with_len(const char *json_str, size_t json_str_len,
                                            NetworkWIFIParameter *struct_array,
                                            uint32_t *struct_array_size);
int c2s_array_update_NetworkWIFIParameter(const cJSON *json, NetworkWIFIParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_NetworkWIFIParameter(const char *json_str, NetworkWIFIParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_NetworkWIFIParameter_with_len(const char *json_str, size_t json_str_len,
                                                   NetworkWIFIParameter *struct_array,
                                                   uint32_t *struct_array_size);
int json_to_struct_NetworkWIFIParameterKeyword(NetworkWIFIParameterKeyword *keyword,
                                               const cJSON *json);
int json_to_struct_GetNetworkWIFIParameterKeyword(char InterfaceName[64], const cJSON *json);
int f2s_array_NetworkWIFIParameter(const char *fine_name, NetworkWIFIParameter *struct_array,
                                   uint32_t *struct_array_size);
int s2f_array_NetworkWIFIParameter(const char *fine_name, const NetworkWIFIParameter *struct_array,
                                   uint32_t struct_array_size);

/* A scan request arrives as a tree only. */
cJSON *struct_to_json_ScanWIFIHotspotParameter(const ScanWIFIHotspotParameter *struct_ptr);
int json_to_struct_ScanWIFIHotspotParameter(ScanWIFIHotspotParameter *struct_ptr,
                                            const cJSON *json);
int c2s_ScanWIFIHotspotParameter(const cJSON *json, ScanWIFIHotspotParameter *struct_ptr);

cJSON *struct_to_json_WIFIHotspot(const WIFIHotspot *struct_ptr);
int json_to_struct_WIFIHotspot(WIFIHotspot *struct_ptr, const cJSON *json);
char *s2j_array_WIFIHotspot(const WIFIHotspot *struct_array, uint32_t struct_array_size,
                            int formatted);
int c2s_array_WIFIHotspot(const cJSON *json, WIFIHotspot *struct_array,
                          uint32_t *struct_array_size);
int j2s_array_WIFIHotspot(const char *json_str, WIFIHotspot *struct_array,
                          uint32_t *struct_array_size);
int j2s_array_WIFIHotspot_with_len(const char *json_str, size_t json_str_len,
                                   WIFIHotspot *struct_array, uint32_t *struct_array_size);
int f2s_array_WIFIHotspot(const char *fine_name, WIFIHotspot *struct_array,
                          uint32_t *struct_array_size);

cJSON *struct_to_json_SerialPortInterface(const SerialPortInterface *struct_ptr);
int json_to_struct_SerialPortInterface(SerialPortInterface *struct_ptr, const cJSON *json);
char *s2j_array_SerialPortInterface(const SerialPortInterface *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_SerialPortInterface(const cJSON *json, SerialPortInterface *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_SerialPortInterface(const char *json_str, SerialPortInterface *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_SerialPortInterface_with_len(const char *json_str, size_t json_str_len,
                                           SerialPortInterface *struct_array,
                                           uint32_t *struct_array_size);
int f2s_array_SerialPortInterface(const char *fine_name, SerialPortInterface *struct_array,
                                  uint32_t *struct_array_size);

cJSON *struct_to_json_SerialPortParameter(const SerialPortParameter *struct_ptr);
int json_to_struct_SerialPortParameter(SerialPortParameter *struct_ptr, const cJSON *json);
char *s2j_array_SerialPortParameter(const SerialPortParameter *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_SerialPortParameter(const cJSON *json, SerialPortParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_SerialPortParameter(const char *json_str, SerialPortParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_SerialPortParameter_with_len(const char *json_str, size_t json_str_len,
                                           SerialPortParameter *struct_array,
                                           uint32_t *struct_array_size);
int c2s_array_update_SerialPortParameter(const cJSON *json, SerialPortParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_SerialPortParameter(const char *json_str, SerialPortParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_SerialPortParameter_with_len(const char *json_str, size_t json_str_len,
                                                  SerialPortParameter *struct_array,
                                                  uint32_t *struct_array_size);
int json_to_struct_SerialPortParameterKeyword(SerialPortParameterKeyword *keyword,
                                              const cJSON *json);
int json_to_struct_GetSerialPortParameterKeyword(char InterfaceName[64], const cJSON *json);
int f2s_array_SerialPortParameter(const char *fine_name, SerialPortParameter *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_SerialPortParameter(const char *fine_name, const SerialPortParameter *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_SerialPortNetworkTransferParameter(const SerialPortNetworkTransferParameter *struct_ptr);
int json_to_struct_SerialPortNetworkTransferParameter(SerialPortNetworkTransferParameter *struct_ptr,
                                                      const cJSON *json);
char *s2j_array_SerialPortNetworkTransferParameter(const SerialPortNetworkTransferParameter *struct_array,
                                                   uint32_t struct_array_size, int formatted);
int c2s_array_SerialPortNetworkTransferParameter(const cJSON *json,
                                                 SerialPortNetworkTransferParameter *struct_array,
                                                 uint32_t *struct_array_size);
int j2s_array_SerialPortNetworkTransferParameter(const char *json_str,
                                                 SerialPortNetworkTransferParameter *struct_array,
                                                 uint32_t *struct_array_size);
int j2s_array_SerialPortNetworkTransferParameter_with_len(const char *json_str, size_t json_str_len,
                                                          SerialPortNetworkTransferParameter *struct_array,
                                                          uint32_t *struct_array_size);
int c2s_array_update_SerialPortNetworkTransferParameter(const cJSON *json,
                                                        SerialPortNetworkTransferParameter *struct_array,
                                                        uint32_t *struct_array_size);
int j2s_array_update_SerialPortNetworkTransferParameter(const char *json_str,
                                                        SerialPortNetworkTransferParameter *struct_array,
                                                        uint32_t *struct_array_size);
int j2s_array_update_SerialPortNetworkTransferParameter_with_len(const char *json_str,
                                                                 size_t json_str_len,
                                                                 SerialPortNetworkTransferParameter *struct_array,
                                                                 uint32_t *struct_array_size);
int json_to_struct_SerialPortNetworkTransferParameterKeyword(SerialPortNetworkTransferParameterKeyword *keyword,
                                                             const cJSON *json);
int json_to_struct_GetSerialPortNetworkTransferParameterKeyword(char InterfaceName[64],
                                                                const cJSON *json);
int f2s_array_SerialPortNetworkTransferParameter(const char *fine_name,
                                                 SerialPortNetworkTransferParameter *struct_array,
                                                 uint32_t *struct_array_size);
int s2f_array_SerialPortNetworkTransferParameter(const char *fine_name,
                                                 const SerialPortNetworkTransferParameter *struct_array,
                                                 uint32_t struct_array_size);

/* ======================================================================
 * Storage, recording and snapshot records
 * ====================================================================== */

/* Emitter and reader only. */
cJSON *struct_to_json_StorageInterface(const StorageInterface *struct_ptr);
int json_to_struct_StorageInterface(StorageInterface *struct_ptr, const cJSON *json);

cJSON *struct_to_json_StorageDevice(const StorageDevice *struct_ptr);
int json_to_struct_StorageDevice(StorageDevice *struct_ptr, const cJSON *json);
char *s2j_array_StorageDevice(const StorageDevice *struct_array, uint32_t struct_array_size,
                              int formatted);
int c2s_array_StorageDevice(const cJSON *json, StorageDevice *struct_array,
                            uint32_t *struct_array_size);
int j2s_array_StorageDevice(const char *json_str, StorageDevice *struct_array,
                            uint32_t *struct_array_size);
int j2s_array_StorageDevice_with_len(const char *json_str, size_t json_str_len,
                                     StorageDevice *struct_array, uint32_t *struct_array_size);
int f2s_array_StorageDevice(const char *fine_name, StorageDevice *struct_array,
                            uint32_t *struct_array_size);

cJSON *struct_to_json_StorageDeviceStatus(const StorageDeviceStatus *struct_ptr);
int json_to_struct_StorageDeviceStatus(StorageDeviceStatus *struct_ptr, const cJSON *json);
char *s2j_array_StorageDeviceStatus(const StorageDeviceStatus *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_StorageDeviceStatus(const cJSON *json, StorageDeviceStatus *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_StorageDeviceStatus(const char *json_str, StorageDeviceStatus *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_StorageDeviceStatus_with_len(const char *json_str, size_t json_str_len,
                                           StorageDeviceStatus *struct_array,
                                           uint32_t *struct_array_size);
int json_to_struct_GetStorageDeviceStatusKeyword(char StorageDeviceName[64], const cJSON *json);

cJSON *struct_to_json_DiskGroupCapabilitySet(const DiskGroupCapabilitySet *struct_ptr);
int json_to_struct_DiskGroupCapabilitySet(DiskGroupCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_DiskGroupCapabilitySet(const DiskGroupCapabilitySet *struct_ptr, int formatted);
int c2s_DiskGroupCapabilitySet(const cJSON *json, DiskGroupCapabilitySet *struct_ptr);
int j2s_DiskGroupCapabilitySet(const char *json_str, DiskGroupCapabilitySet *struct_ptr);
int j2s_DiskGroupCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                        DiskGroupCapabilitySet *struct_ptr);
int f2s_DiskGroupCapabilitySet(const char *fine_name, DiskGroupCapabilitySet *struct_ptr);

cJSON *struct_to_json_DiskGroupParameter(const DiskGroupParameter *struct_ptr);
int json_to_struct_DiskGroupParameter(DiskGroupParameter *struct_ptr, const cJSON *json);
char *s2j_array_DiskGroupParameter(const DiskGroupParameter *struct_array,
                                   uint32_t struct_array_size, int formatted);
int c2s_array_DiskGroupParameter(const cJSON *json, DiskGroupParameter *struct_array,
                                 uint32_t *struct_array_size);
int j2s_array_DiskGroupParameter(const char *json_str, DiskGroupParameter *struct_array,
                                 uint32_t *struct_array_size);
int j2s_array_DiskGroupParameter_with_len(const char *json_str, size_t json_str_len,
                                          DiskGroupParameter *struct_array,
                                          uint32_t *struct_array_size);
int c2s_array_update_DiskGroupParameter(const cJSON *json, DiskGroupParameter *struct_array,
                                        uint32_t *struct_array_size);
int j2s_array_update_DiskGroupParameter(const char *json_str, DiskGroupParameter *struct_array,
                                        uint32_t *struct_array_size);
int j2s_array_update_DiskGroupParameter_with_len(const char *json_str, size_t json_str_len,
                                                 DiskGroupParameter *struct_array,
                                                 uint32_t *struct_array_size);
int json_to_struct_DiskGroupParameterKeyword(DiskGroupParameterKeyword *keyword, const cJSON *json);
int json_to_struct_GetDiskGroupParameterKeyword(char StorageDeviceName[64], const cJSON *json);
int f2s_array_DiskGroupParameter(const char *fine_name, DiskGroupParameter *struct_array,
                                 uint32_t *struct_array_size);
int s2f_array_DiskGroupParameter(const char *fine_name, const DiskGroupParameter *struct_array,
                                 uint32_t struct_array_size);

/* Requests: read from a tree or text, never made into text. */
cJSON *struct_to_json_FormatDiskParameter(const FormatDiskParameter *struct_ptr);
int json_to_struct_FormatDiskParameter(FormatDiskParameter *struct_ptr, const cJSON *json);
int c2s_FormatDiskParameter(const cJSON *json, FormatDiskParameter *struct_ptr);
int j2s_FormatDiskParameter(const char *json_str, FormatDiskParameter *struct_ptr);
int j2s_FormatDiskParameter_with_len(const char *json_str, size_t json_str_len,
                                     FormatDiskParameter *struct_ptr);

cJSON *struct_to_json_FormatDiskProgress(const FormatDiskProgress *struct_ptr);
int json_to_struct_FormatDiskProgress(FormatDiskProgress *struct_ptr, const cJSON *json);
char *s2j_FormatDiskProgress(const FormatDiskProgress *struct_ptr, int formatted);
int c2s_FormatDiskProgress(const cJSON *json, FormatDiskProgress *struct_ptr);
int j2s_FormatDiskProgress(const char *json_str, FormatDiskProgress *struct_ptr);
int j2s_FormatDiskProgress_with_len(const char *json_str, size_t json_str_len,
                                    FormatDiskProgress *struct_ptr);
int json_to_struct_GetFormatDiskProgressKeyword(char StorageDeviceName[64], const cJSON *json);

cJSON *struct_to_json_RemoveStorageDeviceParameter(const RemoveStorageDeviceParameter *struct_ptr);
int json_to_struct_RemoveStorageDeviceParameter(RemoveStorageDeviceParameter *struct_ptr,
                                                const cJSON *json);
int c2s_RemoveStorageDeviceParameter(const cJSON *json, RemoveStorageDeviceParameter *struct_ptr);
int j2s_RemoveStorageDeviceParameter(const char *json_str,
                                     RemoveStorageDeviceParameter *struct_ptr);
int j2s_RemoveStorageDeviceParameter_with_len(const char *json_str, size_t json_str_len,
                                              RemoveStorageDeviceParameter *struct_ptr);

cJSON *struct_to_json_RecordCapabilitySet(const RecordCapabilitySet *struct_ptr);
int json_to_struct_RecordCapabilitySet(RecordCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_RecordCapabilitySet(const RecordCapabilitySet *struct_ptr, int formatted);
int c2s_RecordCapabilitySet(const cJSON *json, RecordCapabilitySet *struct_ptr);
int j2s_RecordCapabilitySet(const char *json_str, RecordCapabilitySet *struct_ptr);
int j2s_RecordCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                     RecordCapabilitySet *struct_ptr);
int f2s_RecordCapabilitySet(const char *fine_name, RecordCapabilitySet *struct_ptr);

cJSON *struct_to_json_RecordParameter(const RecordParameter *struct_ptr);
int json_to_struct_RecordParameter(RecordParameter *struct_ptr, const cJSON *json);
char *s2j_array_RecordParameter(const RecordParameter *struct_array, uint32_t struct_array_size,
                                int formatted);
int c2s_array_RecordParameter(const cJSON *json, RecordParameter *struct_array,
                              uint32_t *struct_array_size);
int j2s_array_RecordParameter(const char *json_str, RecordParameter *struct_array,
                              uint32_t *struct_array_size);
int j2s_array_RecordParameter_with_len(const char *json_str, size_t json_str_len,
                                       RecordParameter *struct_array, uint32_t *struct_array_size);
int c2s_array_update_RecordParameter(const cJSON *json, RecordParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_update_RecordParameter(const char *json_str, RecordParameter *struct_array,
                                     uint32_t *struct_array_size);
int j2s_array_update_RecordParameter_with_len(const char *json_str, size_t json_str_len,
                                              RecordParameter *struct_array,
                                              uint32_t *struct_array_size);
int json_to_struct_RecordParameterKeyword(RecordParameterKeyword *keyword, const cJSON *json);
int json_to_struct_GetRecordParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_RecordParameter(const char *fine_name, RecordParameter *struct_array,
                              uint32_t *struct_array_size);
int s2f_array_RecordParameter(const char *fine_name, const RecordParameter *struct_array,
                              uint32_t struct_array_size);

cJSON *struct_to_json_RecordStatus(const RecordStatus *struct_ptr);
int json_to_struct_RecordStatus(RecordStatus *struct_ptr, const cJSON *json);
char *s2j_array_RecordStatus(const RecordStatus *struct_array, uint32_t struct_array_size,
                             int formatted);
int c2s_array_RecordStatus(const cJSON *json, RecordStatus *struct_array,
                           uint32_t *struct_array_size);
int j2s_array_RecordStatus(const char *json_str, RecordStatus *struct_array,
                           uint32_t *struct_array_size);
int j2s_array_RecordStatus_with_len(const char *json_str, size_t json_str_len,
                                    RecordStatus *struct_array, uint32_t *struct_array_size);
int json_to_struct_GetRecordStatusKeyword(uint32_t *Channel, const cJSON *json);

cJSON *struct_to_json_SnapshotCapabilitySet(const SnapshotCapabilitySet *struct_ptr);
int json_to_struct_SnapshotCapabilitySet(SnapshotCapabilitySet *struct_ptr, const cJSON *json);
char *s2j_array_SnapshotCapabilitySet(const SnapshotCapabilitySet *struct_array,
                                      uint32_t struct_array_size, int formatted);
int c2s_array_SnapshotCapabilitySet(const cJSON *json, SnapshotCapabilitySet *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_SnapshotCapabilitySet(const char *json_str, SnapshotCapabilitySet *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_SnapshotCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                             SnapshotCapabilitySet *struct_array,
                                             uint32_t *struct_array_size);
int f2s_array_SnapshotCapabilitySet(const char *fine_name, SnapshotCapabilitySet *struct_array,
                                    uint32_t *struct_array_size);

cJSON *struct_to_json_SnapshotParameter(const SnapshotParameter *struct_ptr);
int json_to_struct_SnapshotParameter(SnapshotParameter *struct_ptr, const cJSON *json);
char *s2j_array_SnapshotParameter(const SnapshotParameter *struct_array, uint32_t struct_array_size,
                                  int formatted);
int c2s_array_SnapshotParameter(const cJSON *json, SnapshotParameter *struct_array,
                                uint32_t *struct_array_size);
int j2s_array_SnapshotParameter(const char *json_str, SnapshotParameter *struct_array,
                                uint32_t *struct_array_size);
int j2s_array_SnapshotParameter_with_len(const char *json_str, size_t json_str_len,
                                         SnapshotParameter *struct_array,
                                         uint32_t *struct_array_size);
int c2s_array_update_SnapshotParameter(const cJSON *json, SnapshotParameter *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_update_SnapshotParameter(const char *json_str, SnapshotParameter *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_update_SnapshotParameter_with_len(const char *json_str, size_t json_str_len,
                                                SnapshotParameter *struct_array,
                                                uint32_t *struct_array_size);
int json_to_struct_SnapshotParameterKeyword(SnapshotParameterKeyword *keyword, const cJSON *json);
int json_to_struct_GetSnapshotParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_SnapshotParameter(const char *fine_name, SnapshotParameter *struct_array,
                                uint32_t *struct_array_size);
int s2f_array_SnapshotParameter(const char *fine_name, const SnapshotParameter *struct_array,
                                uint32_t struct_array_size);

cJSON *struct_to_json_SnapshotStatus(const SnapshotStatus *struct_ptr);
int json_to_struct_SnapshotStatus(SnapshotStatus *struct_ptr, const cJSON *json);
char *s2j_array_SnapshotStatus(const SnapshotStatus *struct_array, uint32_t struct_array_size,
                               int formatted);
int c2s_array_SnapshotStatus(const cJSON *json, SnapshotStatus *struct_array,
                             uint32_t *struct_array_size);
int j2s_array_SnapshotStatus(const char *json_str, SnapshotStatus *struct_array,
                             uint32_t *struct_array_size);
int j2s_array_SnapshotStatus_with_len(const char *json_str, size_t json_str_len,
                                      SnapshotStatus *struct_array, uint32_t *struct_array_size);
int json_to_struct_GetSnapshotStatusKeyword(uint32_t *Channel, const cJSON *json);

/* The single-picture request is read from a tree only; its answer is only
 * made into text. */
cJSON *struct_to_json_SnapshotInputParameter(const SnapshotInputParameter *struct_ptr);
int json_to_struct_SnapshotInputParameter(SnapshotInputParameter *struct_ptr, const cJSON *json);
int c2s_SnapshotInputParameter(const cJSON *json, SnapshotInputParameter *struct_ptr);

cJSON *struct_to_json_SnapshotResult(const SnapshotResult *struct_ptr);
int json_to_struct_SnapshotResult(SnapshotResult *struct_ptr, const cJSON *json);
char *s2j_SnapshotResult(const SnapshotResult *struct_ptr, int formatted);

/* ======================================================================
 * Output and display records
 * ====================================================================== */

cJSON *struct_to_json_VideoOutputCapabilitySet(const VideoOutputCapabilitySet *struct_ptr);
int json_to_struct_VideoOutputCapabilitySet(VideoOutputCapabilitySet *struct_ptr,
                                            const cJSON *json);
char *s2j_array_VideoOutputCapabilitySet(const VideoOutputCapabilitySet *struct_array,
                                         uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputCapabilitySet(const cJSON *json, VideoOutputCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_VideoOutputCapabilitySet(const char *json_str, VideoOutputCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_VideoOutputCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                                VideoOutputCapabilitySet *struct_array,
                                                uint32_t *struct_array_size);
int f2s_array_VideoOutputCapabilitySet(const char *fine_name,
                                       VideoOutputCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);

cJSON *struct_to_json_VideoOutputInterface(const VideoOutputInterface *struct_ptr);
int json_to_struct_VideoOutputInterface(VideoOutputInterface *struct_ptr, const cJSON *json);
char *s2j_array_VideoOutputInterface(const VideoOutputInterface *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputInterface(const cJSON *json, VideoOutputInterface *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_VideoOutputInterface(const char *json_str, VideoOutputInterface *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_VideoOutputInterface_with_len(const char *json_str, size_t json_str_len,
                                            VideoOutputInterface *struct_array,
                                            uint32_t *struct_array_size);
int f2s_array_VideoOutputInterface(const char *fine_name, VideoOutputInterface *struct_array,
                                   uint32_t *struct_array_size);
int s2f_array_VideoOutputInterface(const char *fine_name, const VideoOutputInterface *struct_array,
                                   uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutputInterfaceParameter(const VideoOutputInterfaceParameter *struct_ptr);
int json_to_struct_VideoOutputInterfaceParameter(VideoOutputInterfaceParameter *struct_ptr,
                                                 const cJSON *json);
char *s2j_array_VideoOutputInterfaceParameter(const VideoOutputInterfaceParameter *struct_array,
                                              uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputInterfaceParameter(const cJSON *json,
                                            VideoOutputInterfaceParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_VideoOutputInterfaceParameter(const char *json_str,
                                            VideoOutputInterfaceParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_VideoOutputInterfaceParameter_with_len(const char *json_str, size_t json_str_len,
                                                     VideoOutputInterfaceParameter *struct_array,
                                                     uint32_t *struct_array_size);
int c2s_array_update_VideoOutputInterfaceParameter(const cJSON *json,
                                                   VideoOutputInterfaceParameter *struct_array,
                                                   uint32_t *struct_array_size);
int j2s_array_update_VideoOutputInterfaceParameter(const char *json_str,
                                                   VideoOutputInterfaceParameter *struct_array,
                                                   uint32_t *struct_array_size);
int j2s_array_update_VideoOutputInterfaceParameter_with_len(const char *json_str,
                                                            size_t json_str_len,
                                                            VideoOutputInterfaceParameter *struct_array,
                                                            uint32_t *struct_array_size);
int json_to_struct_VideoOutputInterfaceParameterKeyword(VideoOutputInterfaceParameterKeyword *keyword,
                                                        const cJSON *json);
int json_to_struct_GetVideoOutputInterfaceParameterKeyword(char InterfaceName[64],
                                                           const cJSON *json);
int f2s_array_VideoOutputInterfaceParameter(const char *fine_name,
                                            VideoOutputInterfaceParameter *struct_array,
                                            uint32_t *struct_array_size);
int s2f_array_VideoOutputInterfaceParameter(const char *fine_name,
                                            const VideoOutputInterfaceParameter *struct_array,
                                            uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutputDisplayParameter(const VideoOutputDisplayParameter *struct_ptr);
int json_to_struct_VideoOutputDisplayParameter(VideoOutputDisplayParameter *struct_ptr,
                                               const cJSON *json);
char *s2j_VideoOutputDisplayParameter(const VideoOutputDisplayParameter *struct_ptr, int formatted);
int c2s_VideoOutputDisplayParameter(const cJSON *json, VideoOutputDisplayParameter *struct_ptr);
int j2s_VideoOutputDisplayParameter(const char *json_str, VideoOutputDisplayParameter *struct_ptr);
int j2s_VideoOutputDisplayParameter_with_len(const char *json_str, size_t json_str_len,
                                             VideoOutputDisplayParameter *struct_ptr);
int f2s_VideoOutputDisplayParameter(const char *fine_name, VideoOutputDisplayParameter *struct_ptr);
int s2f_VideoOutputDisplayParameter(const char *fine_name,
                                    const VideoOutputDisplayParameter *struct_ptr);

cJSON *struct_to_json_VideoOutputScreenSplitParameter(const VideoOutputScreenSplitParameter *struct_ptr);
int json_to_struct_VideoOutputScreenSplitParameter(VideoOutputScreenSplitParameter *struct_ptr,
                                                   const cJSON *json);
char *s2j_array_VideoOutputScreenSplitParameter(const VideoOutputScreenSplitParameter *struct_array,
                                                uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputScreenSplitParameter(const cJSON *json,
                                              VideoOutputScreenSplitParameter *struct_array,
                                              uint32_t *struct_array_size);
int j2s_array_VideoOutputScreenSplitParameter(const char *json_str,
                                              VideoOutputScreenSplitParameter *struct_array,
                                              uint32_t *struct_array_size);
int j2s_array_VideoOutputScreenSplitParameter_with_len(const char *json_str, size_t json_str_len,
                                                       VideoOutputScreenSplitParameter *struct_array,
                                                       uint32_t *struct_array_size);
int c2s_array_update_VideoOutputScreenSplitParameter(const cJSON *json,
                                                     VideoOutputScreenSplitParameter *struct_array,
                                                     uint32_t *struct_array_size);
int j2s_array_update_VideoOutputScreenSplitParameter(const char *json_str,
                                                     VideoOutputScreenSplitParameter *struct_array,
                                                     uint32_t *struct_array_size);
int j2s_array_update_VideoOutputScreenSplitParameter_with_len(const char *json_str,
                                                              size_t json_str_len,
                                                              VideoOutputScreenSplitParameter *struct_array,
                                                              uint32_t *struct_array_size);
int json_to_struct_VideoOutputScreenSplitParameterKeyword(VideoOutputScreenSplitParameterKeyword *keyword,
                                                          const cJSON *json);
int json_to_struct_GetVideoOutputScreenSplitParameterKeyword(char InterfaceName[64],
                                                             const cJSON *json);
int f2s_array_VideoOutputScreenSplitParameter(const char *fine_name,
                                              VideoOutputScreenSplitParameter *struct_array,
                                              uint32_t *struct_array_size);
int s2f_array_VideoOutputScreenSplitParameter(const char *fine_name,
                                              const VideoOutputScreenSplitParameter *struct_array,
                                              uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutputSourceParameter(const VideoOutputSourceParameter *struct_ptr);
int json_to_struct_VideoOutputSourceParameter(VideoOutputSourceParameter *struct_ptr,
                                              const cJSON *json);
char *s2j_array_VideoOutputSourceParameter(const VideoOutputSourceParameter *struct_array,
                                           uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputSourceParameter(const cJSON *json,
                                         VideoOutputSourceParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_VideoOutputSourceParameter(const char *json_str,
                                         VideoOutputSourceParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_VideoOutputSourceParameter_with_len(const char *json_str, size_t json_str_len,
                                                  VideoOutputSourceParameter *struct_array,
                                                  uint32_t *struct_array_size);
int c2s_array_update_VideoOutputSourceParameter(const cJSON *json,
                                                VideoOutputSourceParameter *struct_array,
                                                uint32_t *struct_array_size);
int j2s_array_update_VideoOutputSourceParameter(const char *json_str,
                                                VideoOutputSourceParameter *struct_array,
                                                uint32_t *struct_array_size);
int j2s_array_update_VideoOutputSourceParameter_with_len(const char *json_str, size_t json_str_len,
                                                         VideoOutputSourceParameter *struct_array,
                                                         uint32_t *struct_array_size);
int json_to_struct_VideoOutputSourceParameterKeyword(VideoOutputSourceParameterKeyword *keyword,
                                                     const cJSON *json);
int json_to_struct_GetVideoOutputSourceParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_VideoOutputSourceParameter(const char *fine_name,
                                         VideoOutputSourceParameter *struct_array,
                                         uint32_t *struct_array_size);
int s2f_array_VideoOutputSourceParameter(const char *fine_name,
                                         const VideoOutputSourceParameter *struct_array,
                                         uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutputPlaylistParameter(const VideoOutputPlaylistParameter *struct_ptr);
int json_to_struct_VideoOutputPlaylistParameter(VideoOutputPlaylistParameter *struct_ptr,
                                                const cJSON *json);
char *s2j_array_VideoOutputPlaylistParameter(const VideoOutputPlaylistParameter *struct_array,
                                             uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputPlaylistParameter(const cJSON *json,
                                           VideoOutputPlaylistParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_VideoOutputPlaylistParameter(const char *json_str,
                                           VideoOutputPlaylistParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_VideoOutputPlaylistParameter_with_len(const char *json_str, size_t json_str_len,
                                                    VideoOutputPlaylistParameter *struct_array,
                                                    uint32_t *struct_array_size);
int c2s_array_update_VideoOutputPlaylistParameter(const cJSON *json,
                                                  VideoOutputPlaylistParameter *struct_array,
                                                  uint32_t *struct_array_size);
int j2s_array_update_VideoOutputPlaylistParameter(const char *json_str,
                                                  VideoOutputPlaylistParameter *struct_array,
                                                  uint32_t *struct_array_size);
int j2s_array_update_VideoOutputPlaylistParameter_with_len(const char *json_str,
                                                           size_t json_str_len,
                                                           VideoOutputPlaylistParameter *struct_array,
                                                           uint32_t *struct_array_size);
int json_to_struct_VideoOutputPlaylistParameterKeyword(VideoOutputPlaylistParameterKeyword *keyword,
                                                       const cJSON *json);
int json_to_struct_GetVideoOutputPlaylistParameterKeyword(uint32_t *Index, const cJSON *json);
int f2s_array_VideoOutputPlaylistParameter(const char *fine_name,
                                           VideoOutputPlaylistParameter *struct_array,
                                           uint32_t *struct_array_size);
int s2f_array_VideoOutputPlaylistParameter(const char *fine_name,
                                           const VideoOutputPlaylistParameter *struct_array,
                                           uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutSourceChange(const VideoOutSourceChange *struct_ptr);
int json_to_struct_VideoOutSourceChange(VideoOutSourceChange *struct_ptr, const cJSON *json);
char *s2j_VideoOutSourceChange(const VideoOutSourceChange *struct_ptr, int formatted);
int c2s_VideoOutSourceChange(const cJSON *json, VideoOutSourceChange *struct_ptr);
int j2s_VideoOutSourceChange(const char *json_str, VideoOutSourceChange *struct_ptr);
int j2s_VideoOutSourceChange_with_len(const char *json_str, size_t json_str_len,
                                      VideoOutSourceChange *struct_ptr);

cJSON *struct_to_json_AudioOutSourceChange(const AudioOutSourceChange *struct_ptr);
int json_to_struct_AudioOutSourceChange(AudioOutSourceChange *struct_ptr, const cJSON *json);
char *s2j_AudioOutSourceChange(const AudioOutSourceChange *struct_ptr, int formatted);
int c2s_AudioOutSourceChange(const cJSON *json, AudioOutSourceChange *struct_ptr);
int j2s_AudioOutSourceChange(const char *json_str, AudioOutSourceChange *struct_ptr);
int j2s_AudioOutSourceChange_with_len(const char *json_str, size_t json_str_len,
                                      AudioOutSourceChange *struct_ptr);

cJSON *struct_to_json_AudioOutputCapabilitySet(const AudioOutputCapabilitySet *struct_ptr);
int json_to_struct_AudioOutputCapabilitySet(AudioOutputCapabilitySet *struct_ptr,
                                            const cJSON *json);
char *s2j_array_AudioOutputCapabilitySet(const AudioOutputCapabilitySet *struct_array,
                                         uint32_t struct_array_size, int formatted);
int c2s_array_AudioOutputCapabilitySet(const cJSON *json, AudioOutputCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_AudioOutputCapabilitySet(const char *json_str, AudioOutputCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);
int j2s_array_AudioOutputCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                                AudioOutputCapabilitySet *struct_array,
                                                uint32_t *struct_array_size);
int f2s_array_AudioOutputCapabilitySet(const char *fine_name,
                                       AudioOutputCapabilitySet *struct_array,
                                       uint32_t *struct_array_size);

cJSON *struct_to_json_AudioOutputInterface(const AudioOutputInterface *struct_ptr);
int json_to_struct_AudioOutputInterface(AudioOutputInterface *struct_ptr, const cJSON *json);
char *s2j_array_AudioOutputInterface(const AudioOutputInterface *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_AudioOutputInterface(const cJSON *json, AudioOutputInterface *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_AudioOutputInterface(const char *json_str, AudioOutputInterface *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_AudioOutputInterface_with_len(const char *json_str, size_t json_str_len,
                                            AudioOutputInterface *struct_array,
                                            uint32_t *struct_array_size);
int f2s_array_AudioOutputInterface(const char *fine_name, AudioOutputInterface *struct_array,
                                   uint32_t *struct_array_size);
int s2f_array_AudioOutputInterface(const char *fine_name, const AudioOutputInterface *struct_array,
                                   uint32_t struct_array_size);

cJSON *struct_to_json_AudioOutputInterfaceParameter(const AudioOutputInterfaceParameter *struct_ptr);
int json_to_struct_AudioOutputInterfaceParameter(AudioOutputInterfaceParameter *struct_ptr,
                                                 const cJSON *json);
char *s2j_array_AudioOutputInterfaceParameter(const AudioOutputInterfaceParameter *struct_array,
                                              uint32_t struct_array_size, int formatted);
int c2s_array_AudioOutputInterfaceParameter(const cJSON *json,
                                            AudioOutputInterfaceParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_AudioOutputInterfaceParameter(const char *json_str,
                                            AudioOutputInterfaceParameter *struct_array,
                                            uint32_t *struct_array_size);
int j2s_array_AudioOutputInterfaceParameter_with_len(const char *json_str, size_t json_str_len,
                                                     AudioOutputInterfaceParameter *struct_array,
                                                     uint32_t *struct_array_size);
int c2s_array_update_AudioOutputInterfaceParameter(const cJSON *json,
                                                   AudioOutputInterfaceParameter *struct_array,
                                                   uint32_t *struct_array_size);
int j2s_array_update_AudioOutputInterfaceParameter(const char *json_str,
                                                   AudioOutputInterfaceParameter *struct_array,
                                                   uint32_t *struct_array_size);
int j2s_array_update_AudioOutputInterfaceParameter_with_len(const char *json_str,
                                                            size_t json_str_len,
                                                            AudioOutputInterfaceParameter *struct_array,
                                                            uint32_t *struct_array_size);
int json_to_struct_AudioOutputInterfaceParameterKeyword(AudioOutputInterfaceParameterKeyword *keyword,
                                                        const cJSON *json);
int json_to_struct_GetAudioOutputInterfaceParameterKeyword(char InterfaceName[64],
                                                           const cJSON *json);
int f2s_array_AudioOutputInterfaceParameter(const char *fine_name,
                                            AudioOutputInterfaceParameter *struct_array,
                                            uint32_t *struct_array_size);
int s2f_array_AudioOutputInterfaceParameter(const char *fine_name,
                                            const AudioOutputInterfaceParameter *struct_array,
                                            uint32_t struct_array_size);

cJSON *struct_to_json_AudioOutputParameter(const AudioOutputParameter *struct_ptr);
int json_to_struct_AudioOutputParameter(AudioOutputParameter *struct_ptr, const cJSON *json);
char *s2j_array_AudioOutputParameter(const AudioOutputParameter *struct_array,
                                     uint32_t struct_array_size, int formatted);
int c2s_array_AudioOutputParameter(const cJSON *json, AudioOutputParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_AudioOutputParameter(const char *json_str, AudioOutputParameter *struct_array,
                                   uint32_t *struct_array_size);
int j2s_array_AudioOutputParameter_with_len(const char *json_str, size_t json_str_len,
                                            AudioOutputParameter *struct_array,
                                            uint32_t *struct_array_size);
int c2s_array_update_AudioOutputParameter(const cJSON *json, AudioOutputParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_AudioOutputParameter(const char *json_str, AudioOutputParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_update_AudioOutputParameter_with_len(const char *json_str, size_t json_str_len,
                                                   AudioOutputParameter *struct_array,
                                                   uint32_t *struct_array_size);
int json_to_struct_AudioOutputParameterKeyword(AudioOutputParameterKeyword *keyword,
                                               const cJSON *json);
int json_to_struct_GetAudioOutputParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_AudioOutputParameter(const char *fine_name, AudioOutputParameter *struct_array,
                                   uint32_t *struct_array_size);
int s2f_array_AudioOutputParameter(const char *fine_name, const AudioOutputParameter *struct_array,
                                   uint32_t struct_array_size);

cJSON *struct_to_json_VideoDecodeCapabilitySet(const VideoDecodeCapabilitySet *struct_ptr);
int json_to_struct_VideoDecodeCapabilitySet(VideoDecodeCapabilitySet *struct_ptr,
                                            const cJSON *json);
char *s2j_VideoDecodeCapabilitySet(const VideoDecodeCapabilitySet *struct_ptr, int formatted);
int c2s_VideoDecodeCapabilitySet(const cJSON *json, VideoDecodeCapabilitySet *struct_ptr);
int j2s_VideoDecodeCapabilitySet(const char *json_str, VideoDecodeCapabilitySet *struct_ptr);
int j2s_VideoDecodeCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                          VideoDecodeCapabilitySet *struct_ptr);
int f2s_VideoDecodeCapabilitySet(const char *fine_name, VideoDecodeCapabilitySet *struct_ptr);

cJSON *struct_to_json_AudioDecodeCapabilitySet(const AudioDecodeCapabilitySet *struct_ptr);
int json_to_struct_AudioDecodeCapabilitySet(AudioDecodeCapabilitySet *struct_ptr,
                                            const cJSON *json);
char *s2j_AudioDecodeCapabilitySet(const AudioDecodeCapabilitySet *struct_ptr, int formatted);
int c2s_AudioDecodeCapabilitySet(const cJSON *json, AudioDecodeCapabilitySet *struct_ptr);
int j2s_AudioDecodeCapabilitySet(const char *json_str, AudioDecodeCapabilitySet *struct_ptr);
int j2s_AudioDecodeCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                          AudioDecodeCapabilitySet *struct_ptr);
int f2s_AudioDecodeCapabilitySet(const char *fine_name, AudioDecodeCapabilitySet *struct_ptr);

cJSON *struct_to_json_ScreenshotCapabilitySet(const ScreenshotCapabilitySet *struct_ptr);
int json_to_struct_ScreenshotCapabilitySet(ScreenshotCapabilitySet *struct_ptr, const cJSON *json);
int c2s_ScreenshotCapabilitySet(const cJSON *json, ScreenshotCapabilitySet *struct_ptr);
int j2s_ScreenshotCapabilitySet(const char *json_str, ScreenshotCapabilitySet *struct_ptr);
int j2s_ScreenshotCapabilitySet_with_len(const char *json_str, size_t json_str_len,
                                         ScreenshotCapabilitySet *struct_ptr);
int f2s_ScreenshotCapabilitySet(const char *fine_name, ScreenshotCapabilitySet *struct_ptr);

cJSON *struct_to_json_ScreenshotParameter(const ScreenshotParameter *struct_ptr);
int json_to_struct_ScreenshotParameter(ScreenshotParameter *struct_ptr, const cJSON *json);
char *s2j_array_ScreenshotParameter(const ScreenshotParameter *struct_array,
                                    uint32_t struct_array_size, int formatted);
int c2s_array_ScreenshotParameter(const cJSON *json, ScreenshotParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_ScreenshotParameter(const char *json_str, ScreenshotParameter *struct_array,
                                  uint32_t *struct_array_size);
int j2s_array_ScreenshotParameter_with_len(const char *json_str, size_t json_str_len,
                                           ScreenshotParameter *struct_array,
                                           uint32_t *struct_array_size);
int c2s_array_update_ScreenshotParameter(const cJSON *json, ScreenshotParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_ScreenshotParameter(const char *json_str, ScreenshotParameter *struct_array,
                                         uint32_t *struct_array_size);
int j2s_array_update_ScreenshotParameter_with_len(const char *json_str, size_t json_str_len,
                                                  ScreenshotParameter *struct_array,
                                                  uint32_t *struct_array_size);
int json_to_struct_ScreenshotParameterKeyword(ScreenshotParameterKeyword *keyword,
                                              const cJSON *json);
int json_to_struct_GetScreenshotParameterKeyword(uint32_t *Index, const cJSON *json);
int f2s_array_ScreenshotParameter(const char *fine_name, ScreenshotParameter *struct_array,
                                  uint32_t *struct_array_size);
int s2f_array_ScreenshotParameter(const char *fine_name, const ScreenshotParameter *struct_array,
                                  uint32_t struct_array_size);

cJSON *struct_to_json_ScreenshotListParameter(const ScreenshotListParameter *struct_ptr);
int json_to_struct_ScreenshotListParameter(ScreenshotListParameter *struct_ptr, const cJSON *json);
char *s2j_array_ScreenshotListParameter(const ScreenshotListParameter *struct_array,
                                        uint32_t struct_array_size, int formatted);
int c2s_array_ScreenshotListParameter(const cJSON *json, ScreenshotListParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_ScreenshotListParameter(const char *json_str, ScreenshotListParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_ScreenshotListParameter_with_len(const char *json_str, size_t json_str_len,
                                               ScreenshotListParameter *struct_array,
                                               uint32_t *struct_array_size);
int c2s_array_update_ScreenshotListParameter(const cJSON *json,
                                             ScreenshotListParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_ScreenshotListParameter(const char *json_str,
                                             ScreenshotListParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_ScreenshotListParameter_with_len(const char *json_str, size_t json_str_len,
                                                      ScreenshotListParameter *struct_array,
                                                      uint32_t *struct_array_size);
int json_to_struct_ScreenshotListParameterKeyword(ScreenshotListParameterKeyword *keyword,
                                                  const cJSON *json);
int json_to_struct_GetScreenshotListParameterKeyword(uint32_t *Index, const cJSON *json);
int f2s_array_ScreenshotListParameter(const char *fine_name, ScreenshotListParameter *struct_array,
                                      uint32_t *struct_array_size);
int s2f_array_ScreenshotListParameter(const char *fine_name,
                                      const ScreenshotListParameter *struct_array,
                                      uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutputScreenshotParameter(const VideoOutputScreenshotParameter *struct_ptr);
int json_to_struct_VideoOutputScreenshotParameter(VideoOutputScreenshotParameter *struct_ptr,
                                                  const cJSON *json);
char *s2j_array_VideoOutputScreenshotParameter(const VideoOutputScreenshotParameter *struct_array,
                                               uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputScreenshotParameter(const cJSON *json,
                                             VideoOutputScreenshotParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_VideoOutputScreenshotParameter(const char *json_str,
                                             VideoOutputScreenshotParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_VideoOutputScreenshotParameter_with_len(const char *json_str, size_t json_str_len,
                                                      VideoOutputScreenshotParameter *struct_array,
                                                      uint32_t *struct_array_size);
int c2s_array_update_VideoOutputScreenshotParameter(const cJSON *json,
                                                    VideoOutputScreenshotParameter *struct_array,
                                                    uint32_t *struct_array_size);
int j2s_array_update_VideoOutputScreenshotParameter(const char *json_str,
                                                    VideoOutputScreenshotParameter *struct_array,
                                                    uint32_t *struct_array_size);
int j2s_array_update_VideoOutputScreenshotParameter_with_len(const char *json_str,
                                                             size_t json_str_len,
                                                             VideoOutputScreenshotParameter *struct_array,
                                                             uint32_t *struct_array_size);
int json_to_struct_VideoOutputScreenshotParameterKeyword(VideoOutputScreenshotParameterKeyword *keyword,
                                                         const cJSON *json);
int json_to_struct_GetVideoOutputScreenshotParameterKeyword(char InterfaceName[64],
                                                            const cJSON *json);
int f2s_array_VideoOutputScreenshotParameter(const char *fine_name,
                                             VideoOutputScreenshotParameter *struct_array,
                                             uint32_t *struct_array_size);
int s2f_array_VideoOutputScreenshotParameter(const char *fine_name,
                                             const VideoOutputScreenshotParameter *struct_array,
                                             uint32_t struct_array_size);

cJSON *struct_to_json_VideoOutputOSDParameter(const VideoOutputOSDParameter *struct_ptr);
int json_to_struct_VideoOutputOSDParameter(VideoOutputOSDParameter *struct_ptr, const cJSON *json);
char *s2j_array_VideoOutputOSDParameter(const VideoOutputOSDParameter *struct_array,
                                        uint32_t struct_array_size, int formatted);
int c2s_array_VideoOutputOSDParameter(const cJSON *json, VideoOutputOSDParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_VideoOutputOSDParameter(const char *json_str, VideoOutputOSDParameter *struct_array,
                                      uint32_t *struct_array_size);
int j2s_array_VideoOutputOSDParameter_with_len(const char *json_str, size_t json_str_len,
                                               VideoOutputOSDParameter *struct_array,
                                               uint32_t *struct_array_size);
int c2s_array_update_VideoOutputOSDParameter(const cJSON *json,
                                             VideoOutputOSDParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_VideoOutputOSDParameter(const char *json_str,
                                             VideoOutputOSDParameter *struct_array,
                                             uint32_t *struct_array_size);
int j2s_array_update_VideoOutputOSDParameter_with_len(const char *json_str, size_t json_str_len,
                                                      VideoOutputOSDParameter *struct_array,
                                                      uint32_t *struct_array_size);
int json_to_struct_VideoOutputOSDParameterKeyword(VideoOutputOSDParameterKeyword *keyword,
                                                  const cJSON *json);
int json_to_struct_GetVideoOutputOSDParameterKeyword(uint32_t *Channel, const cJSON *json);
int f2s_array_VideoOutputOSDParameter(const char *fine_name, VideoOutputOSDParameter *struct_array,
                                      uint32_t *struct_array_size);
int s2f_array_VideoOutputOSDParameter(const char *fine_name,
                                      const VideoOutputOSDParameter *struct_array,
                                      uint32_t struct_array_size);

cJSON *struct_to_json_WatermarkOSDParameter(const WatermarkOSDParameter *struct_ptr);
int json_to_struct_WatermarkOSDParameter(WatermarkOSDParameter *struct_ptr, const cJSON *json);
char *s2j_array_WatermarkOSDParameter(const WatermarkOSDParameter *struct_array,
                                      uint32_t struct_array_size, int formatted);
int c2s_array_WatermarkOSDParameter(const cJSON *json, WatermarkOSDParameter *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_WatermarkOSDParameter(const char *json_str, WatermarkOSDParameter *struct_array,
                                    uint32_t *struct_array_size);
int j2s_array_WatermarkOSDParameter_with_len(const char *json_str, size_t json_str_len,
                                             WatermarkOSDParameter *struct_array,
                                             uint32_t *struct_array_size);
int c2s_array_update_WatermarkOSDParameter(const cJSON *json, WatermarkOSDParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_update_WatermarkOSDParameter(const char *json_str,
                                           WatermarkOSDParameter *struct_array,
                                           uint32_t *struct_array_size);
int j2s_array_update_WatermarkOSDParameter_with_len(const char *json_str, size_t json_str_len,
                                                    WatermarkOSDParameter *struct_array,
                                                    uint32_t *struct_array_size);
int json_to_struct_WatermarkOSDParameterKeyword(WatermarkOSDParameterKeyword *keyword,
                                                const cJSON *json);
int json_to_struct_GetWatermarkOSDParameterKeyword(char InterfaceName[64], const cJSON *json);
int f2s_array_WatermarkOSDParameter(const char *fine_name, WatermarkOSDParameter *struct_array,
                                    uint32_t *struct_array_size);
int s2f_array_WatermarkOSDParameter(const char *fine_name,
                                    const WatermarkOSDParameter *struct_array,
                                    uint32_t struct_array_size);

cJSON *struct_to_json_WatermarkPictureParameter(const WatermarkPictureParameter *struct_ptr);
int json_to_struct_WatermarkPictureParameter(WatermarkPictureParameter *struct_ptr,
                                             const cJSON *json);
char *s2j_array_WatermarkPictureParameter(const WatermarkPictureParameter *struct_array,
                                          uint32_t struct_array_size, int formatted);
int c2s_array_WatermarkPictureParameter(const cJSON *json, WatermarkPictureParameter *struct_array,
                                        uint32_t *struct_array_size);
int j2s_array_WatermarkPictureParameter(const char *json_str,
                                        WatermarkPictureParameter *struct_array,
                                        uint32_t *struct_array_size);
int j2s_array_WatermarkPictureParameter_with_len(const char *json_str, size_t json_str_len,
                                                 WatermarkPictureParameter *struct_array,
                                                 uint32_t *struct_array_size);
int c2s_array_update_WatermarkPictureParameter(const cJSON *json,
                                               WatermarkPictureParameter *struct_array,
                                               uint32_t *struct_array_size);
int j2s_array_update_WatermarkPictureParameter(const char *json_str,
                                               WatermarkPictureParameter *struct_array,
                                               uint32_t *struct_array_size);
int j2s_array_update_WatermarkPictureParameter_with_len(const char *json_str, size_t json_str_len,
                                                        WatermarkPictureParameter *struct_array,
                                                        uint32_t *struct_array_size);
int json_to_struct_WatermarkPictureParameterKeyword(WatermarkPictureParameterKeyword *keyword,
                                                    const cJSON *json);
int json_to_struct_GetWatermarkPictureParameterKeyword(char InterfaceName[64], const cJSON *json);
int f2s_array_WatermarkPictureParameter(const char *fine_name,
                                        WatermarkPictureParameter *struct_array,
                                        uint32_t *struct_array_size);
int s2f_array_WatermarkPictureParameter(const char *fine_name,
                                        const WatermarkPictureParameter *struct_array,
                                        uint32_t struct_array_size);

cJSON *struct_to_json_WatermarkDotmatrixParameter(const WatermarkDotmatrixParameter *struct_ptr);
int json_to_struct_WatermarkDotmatrixParameter(WatermarkDotmatrixParameter *struct_ptr,
                                               const cJSON *json);
char *s2j_array_WatermarkDotmatrixParameter(const WatermarkDotmatrixParameter *struct_array,
                                            uint32_t struct_array_size, int formatted);
int c2s_array_WatermarkDotmatrixParameter(const cJSON *json,
                                          WatermarkDotmatrixParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_WatermarkDotmatrixParameter(const char *json_str,
                                          WatermarkDotmatrixParameter *struct_array,
                                          uint32_t *struct_array_size);
int j2s_array_WatermarkDotmatrixParameter_with_len(const char *json_str, size_t json_str_len,
                                                   WatermarkDotmatrixParameter *struct_array,
                                                   uint32_t *struct_array_size);
int c2s_array_update_WatermarkDotmatrixParameter(const cJSON *json,
                                                 WatermarkDotmatrixParameter *struct_array,
                                                 uint32_t *struct_array_size);
int j2s_array_update_WatermarkDotmatrixParameter(const char *json_str,
                                                 WatermarkDotmatrixParameter *struct_array,
                                                 uint32_t *struct_array_size);
int j2s_array_update_WatermarkDotmatrixParameter_with_len(const char *json_str, size_t json_str_len,
                                                          WatermarkDotmatrixParameter *struct_array,
                                                          uint32_t *struct_array_size);
int json_to_struct_WatermarkDotmatrixParameterKeyword(WatermarkDotmatrixParameterKeyword *keyword,
                                                      const cJSON *json);
int json_to_struct_GetWatermarkDotmatrixParameterKeyword(char InterfaceName[64], const cJSON *json);
int f2s_array_WatermarkDotmatrixParameter(const char *fine_name,
                                          WatermarkDotmatrixParameter *struct_array,
                                          uint32_t *struct_array_size);
int s2f_array_WatermarkDotmatrixParameter(const char *fine_name,
                                          const WatermarkDotmatrixParameter *struct_array,
                                          uint32_t struct_array_size);

cJSON *struct_to_json_UploadWatermarkPictureParameter(const UploadWatermarkPictureParameter *struct_ptr);
int json_to_struct_UploadWatermarkPictureParameter(UploadWatermarkPictureParameter *struct_ptr,
                                                   const cJSON *json);
char *s2j_UploadWatermarkPictureParameter(const UploadWatermarkPictureParameter *struct_ptr,
                                          int formatted);
int c2s_UploadWatermarkPictureParameter(const cJSON *json,
                                        UploadWatermarkPictureParameter *struct_ptr);
int j2s_UploadWatermarkPictureParameter(const char *json_str,
                                        UploadWatermarkPictureParameter *struct_ptr);
int j2s_UploadWatermarkPictureParameter_with_len(const char *json_str, size_t json_str_len,
                                                 UploadWatermarkPictureParameter *struct_ptr);

#ifdef __cplusplus
}
#endif

#endif /* APP_S2J_H */
