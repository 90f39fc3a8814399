/*
 * app_s2j.h - libapp_s2j: appliance records <-> JSON.
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

#define APP_S2J_DECLARE_RECORD(T) \
    cJSON *struct_to_json_##T(const T *struct_ptr); \
    int json_to_struct_##T(T *struct_ptr, const cJSON *json);
#define APP_S2J_DECLARE_S2J(T) char *s2j_##T(const T *struct_ptr, int formatted);
#define APP_S2J_DECLARE_C2S(T) int c2s_##T(const cJSON *json, T *struct_ptr);
#define APP_S2J_DECLARE_J2S(T) \
    int j2s_##T(const char *json_str, T *struct_ptr); \
    int j2s_##T##_with_len(const char *json_str, size_t json_str_len, T *struct_ptr);
#define APP_S2J_DECLARE_TEXT(T) APP_S2J_DECLARE_S2J(T) APP_S2J_DECLARE_C2S(T) APP_S2J_DECLARE_J2S(T)
#define APP_S2J_DECLARE_S2J_ARRAY(T) \
    char *s2j_array_##T(const T *struct_array, uint32_t struct_array_size, int formatted);
#define APP_S2J_DECLARE_C2S_ARRAY(T) \
    int c2s_array_##T(const cJSON *json, T *struct_array, uint32_t *struct_array_size);
#define APP_S2J_DECLARE_J2S_ARRAY(T) \
    int j2s_array_##T(const char *json_str, T *struct_array, uint32_t *struct_array_size); \
    int j2s_array_##T##_with_len(const char *json_str, size_t json_str_len, T *struct_array, \
                                 uint32_t *struct_array_size);
#define APP_S2J_DECLARE_ARRAY(T) \
    APP_S2J_DECLARE_S2J_ARRAY(T) APP_S2J_DECLARE_C2S_ARRAY(T) APP_S2J_DECLARE_J2S_ARRAY(T)
#define APP_S2J_DECLARE_UPDATE(T) \
    int c2s_array_update_##T(const cJSON *json, T *struct_array, uint32_t *struct_array_size); \
    int j2s_array_update_##T(const char *json_str, T *struct_array, uint32_t *struct_array_size); \
    int j2s_array_update_##T##_with_len(const char *json_str, size_t json_str_len, T *struct_array, \
                                        uint32_t *struct_array_size);
#define APP_S2J_DECLARE_KEYWORD(T) int json_to_struct_##T##Keyword(T##Keyword *keyword, const cJSON *json);
#define APP_S2J_DECLARE_GET_INT_KEYWORD(T, CType, Key) \
    int json_to_struct_Get##T##Keyword(CType *Key, const cJSON *json);
#define APP_S2J_DECLARE_GET_STR_KEYWORD(T, Key) \
    int json_to_struct_Get##T##Keyword(char Key[64], const cJSON *json);
#define APP_S2J_DECLARE_F2S(T) int f2s_##T(const char *fine_name, T *struct_ptr);
#define APP_S2J_DECLARE_S2F(T) int s2f_##T(const char *fine_name, const T *struct_ptr);
#define APP_S2J_DECLARE_F2S_ARRAY(T) \
    int f2s_array_##T(const char *fine_name, T *struct_array, uint32_t *struct_array_size);
#define APP_S2J_DECLARE_S2F_ARRAY(T) \
    int s2f_array_##T(const char *fine_name, const T *struct_array, uint32_t struct_array_size);

/* ======================================================================
 * System, time and account records
 * ====================================================================== */

APP_S2J_DECLARE_RECORD(DeviceInfo)
APP_S2J_DECLARE_TEXT(DeviceInfo)
APP_S2J_DECLARE_F2S(DeviceInfo)
APP_S2J_DECLARE_S2F(DeviceInfo)

APP_S2J_DECLARE_RECORD(DeviceCapabilitySet)
APP_S2J_DECLARE_TEXT(DeviceCapabilitySet)
APP_S2J_DECLARE_F2S(DeviceCapabilitySet)

APP_S2J_DECLARE_RECORD(DeviceTime)
APP_S2J_DECLARE_TEXT(DeviceTime)
APP_S2J_DECLARE_KEYWORD(DeviceTime)

APP_S2J_DECLARE_RECORD(AdvancedParameter)
APP_S2J_DECLARE_TEXT(AdvancedParameter)
APP_S2J_DECLARE_F2S(AdvancedParameter)
APP_S2J_DECLARE_S2F(AdvancedParameter)

APP_S2J_DECLARE_RECORD(TimeZone)
APP_S2J_DECLARE_ARRAY(TimeZone)
APP_S2J_DECLARE_F2S_ARRAY(TimeZone)

APP_S2J_DECLARE_RECORD(TimeZoneParameter)
APP_S2J_DECLARE_TEXT(TimeZoneParameter)
APP_S2J_DECLARE_F2S(TimeZoneParameter)
APP_S2J_DECLARE_S2F(TimeZoneParameter)

APP_S2J_DECLARE_RECORD(NTPServer)
APP_S2J_DECLARE_ARRAY(NTPServer)
APP_S2J_DECLARE_F2S_ARRAY(NTPServer)

APP_S2J_DECLARE_RECORD(NTPParameter)
APP_S2J_DECLARE_TEXT(NTPParameter)
APP_S2J_DECLARE_F2S(NTPParameter)
APP_S2J_DECLARE_S2F(NTPParameter)

APP_S2J_DECLARE_RECORD(CrontabCapabilitySet)
APP_S2J_DECLARE_TEXT(CrontabCapabilitySet)
APP_S2J_DECLARE_F2S(CrontabCapabilitySet)

APP_S2J_DECLARE_RECORD(CrontabParameter)
APP_S2J_DECLARE_ARRAY(CrontabParameter)
APP_S2J_DECLARE_UPDATE(CrontabParameter)
APP_S2J_DECLARE_KEYWORD(CrontabParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(CrontabParameter, uint32_t, Index)
APP_S2J_DECLARE_F2S_ARRAY(CrontabParameter)
APP_S2J_DECLARE_S2F_ARRAY(CrontabParameter)

/* Users and passwords.  The family sets follow the use of each record: a
 * request is only read from a tree, a result only written; the emitters and
 * readers of all six exist all the same. */

APP_S2J_DECLARE_RECORD(VerifyPasswordParameter)
APP_S2J_DECLARE_S2J(VerifyPasswordParameter)
APP_S2J_DECLARE_C2S(VerifyPasswordParameter)

APP_S2J_DECLARE_RECORD(VerifyPasswordResult)
APP_S2J_DECLARE_S2J(VerifyPasswordResult)
APP_S2J_DECLARE_C2S(VerifyPasswordResult)

APP_S2J_DECLARE_RECORD(CreateUserParameter)
APP_S2J_DECLARE_C2S(CreateUserParameter)
APP_S2J_DECLARE_ARRAY(CreateUserParameter)
APP_S2J_DECLARE_F2S_ARRAY(CreateUserParameter)
APP_S2J_DECLARE_S2F_ARRAY(CreateUserParameter)

APP_S2J_DECLARE_RECORD(DeleteUserParameter)
APP_S2J_DECLARE_C2S(DeleteUserParameter)

APP_S2J_DECLARE_RECORD(ModifyPasswordParameter)
APP_S2J_DECLARE_C2S(ModifyPasswordParameter)

APP_S2J_DECLARE_RECORD(UserList)
APP_S2J_DECLARE_S2J_ARRAY(UserList)

/* ======================================================================
 * Media input and encoding records
 * ====================================================================== */

/* Video input: all five are arrays. */

APP_S2J_DECLARE_RECORD(VideoInputCapabilitySet)
APP_S2J_DECLARE_ARRAY(VideoInputCapabilitySet)
APP_S2J_DECLARE_F2S_ARRAY(VideoInputCapabilitySet)

APP_S2J_DECLARE_RECORD(VideoInputInterface)
APP_S2J_DECLARE_ARRAY(VideoInputInterface)
APP_S2J_DECLARE_F2S_ARRAY(VideoInputInterface)
APP_S2J_DECLARE_S2F_ARRAY(VideoInputInterface)

APP_S2J_DECLARE_RECORD(VideoInputParameter)
APP_S2J_DECLARE_ARRAY(VideoInputParameter)
APP_S2J_DECLARE_UPDATE(VideoInputParameter)
APP_S2J_DECLARE_KEYWORD(VideoInputParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(VideoInputParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(VideoInputParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoInputParameter)

APP_S2J_DECLARE_RECORD(VideoInputStatus)
APP_S2J_DECLARE_ARRAY(VideoInputStatus)
APP_S2J_DECLARE_GET_STR_KEYWORD(VideoInputStatus, InterfaceName)

APP_S2J_DECLARE_RECORD(VideoInputVGAParameter)
APP_S2J_DECLARE_ARRAY(VideoInputVGAParameter)
APP_S2J_DECLARE_UPDATE(VideoInputVGAParameter)
APP_S2J_DECLARE_KEYWORD(VideoInputVGAParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(VideoInputVGAParameter, InterfaceName)

/* Video encoding.  The keyword reader of VideoEncodeParameter reads Channel
 * and StreamIndex; its single-key reader Channel alone. */

APP_S2J_DECLARE_RECORD(VideoEncodeCapabilitySet)
APP_S2J_DECLARE_ARRAY(VideoEncodeCapabilitySet)
APP_S2J_DECLARE_F2S_ARRAY(VideoEncodeCapabilitySet)

APP_S2J_DECLARE_RECORD(VideoEncodeParameter)
APP_S2J_DECLARE_ARRAY(VideoEncodeParameter)
APP_S2J_DECLARE_UPDATE(VideoEncodeParameter)
APP_S2J_DECLARE_KEYWORD(VideoEncodeParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(VideoEncodeParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(VideoEncodeParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoEncodeParameter)

APP_S2J_DECLARE_RECORD(RequestIDRParameter)
APP_S2J_DECLARE_TEXT(RequestIDRParameter)

/* Encoder OSD.  The keyword reader of VideoEncodeOSDParameter reads Channel
 * and Index; its single-key reader Channel alone. */

APP_S2J_DECLARE_RECORD(VideoEncodeOSDCapabilitySet)
APP_S2J_DECLARE_TEXT(VideoEncodeOSDCapabilitySet)
APP_S2J_DECLARE_F2S(VideoEncodeOSDCapabilitySet)

APP_S2J_DECLARE_RECORD(VideoEncodeOSDParameter)
APP_S2J_DECLARE_ARRAY(VideoEncodeOSDParameter)
APP_S2J_DECLARE_UPDATE(VideoEncodeOSDParameter)
APP_S2J_DECLARE_KEYWORD(VideoEncodeOSDParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(VideoEncodeOSDParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(VideoEncodeOSDParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoEncodeOSDParameter)

/* Audio input and encoding. */

APP_S2J_DECLARE_RECORD(AudioInputCapabilitySet)
APP_S2J_DECLARE_ARRAY(AudioInputCapabilitySet)
APP_S2J_DECLARE_F2S_ARRAY(AudioInputCapabilitySet)

APP_S2J_DECLARE_RECORD(AudioInputInterface)
APP_S2J_DECLARE_ARRAY(AudioInputInterface)
APP_S2J_DECLARE_F2S_ARRAY(AudioInputInterface)
APP_S2J_DECLARE_S2F_ARRAY(AudioInputInterface)

APP_S2J_DECLARE_RECORD(AudioInputInterfaceParameter)
APP_S2J_DECLARE_ARRAY(AudioInputInterfaceParameter)
APP_S2J_DECLARE_UPDATE(AudioInputInterfaceParameter)
APP_S2J_DECLARE_KEYWORD(AudioInputInterfaceParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(AudioInputInterfaceParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(AudioInputInterfaceParameter)
APP_S2J_DECLARE_S2F_ARRAY(AudioInputInterfaceParameter)

APP_S2J_DECLARE_RECORD(AudioInputParameter)
APP_S2J_DECLARE_ARRAY(AudioInputParameter)
APP_S2J_DECLARE_UPDATE(AudioInputParameter)
APP_S2J_DECLARE_KEYWORD(AudioInputParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(AudioInputParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(AudioInputParameter)
APP_S2J_DECLARE_S2F_ARRAY(AudioInputParameter)

APP_S2J_DECLARE_RECORD(AudioInputStatus)
APP_S2J_DECLARE_ARRAY(AudioInputStatus)
APP_S2J_DECLARE_GET_STR_KEYWORD(AudioInputStatus, InterfaceName)

APP_S2J_DECLARE_RECORD(AudioEncodeCapabilitySet)
APP_S2J_DECLARE_TEXT(AudioEncodeCapabilitySet)
APP_S2J_DECLARE_F2S(AudioEncodeCapabilitySet)

APP_S2J_DECLARE_RECORD(AudioEncodeParameter)
APP_S2J_DECLARE_ARRAY(AudioEncodeParameter)
APP_S2J_DECLARE_UPDATE(AudioEncodeParameter)
APP_S2J_DECLARE_KEYWORD(AudioEncodeParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(AudioEncodeParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(AudioEncodeParameter)
APP_S2J_DECLARE_S2F_ARRAY(AudioEncodeParameter)

/* ======================================================================
 * Streaming records
 * ====================================================================== */

/* Capability sets are loaded from files and never saved. */

APP_S2J_DECLARE_RECORD(StreamingOutputCapabilitySet)
APP_S2J_DECLARE_TEXT(StreamingOutputCapabilitySet)
APP_S2J_DECLARE_F2S(StreamingOutputCapabilitySet)

APP_S2J_DECLARE_RECORD(RtspCapabilitySet)
APP_S2J_DECLARE_TEXT(RtspCapabilitySet)
APP_S2J_DECLARE_F2S(RtspCapabilitySet)

APP_S2J_DECLARE_RECORD(RtmpCapabilitySet)
APP_S2J_DECLARE_TEXT(RtmpCapabilitySet)
APP_S2J_DECLARE_F2S(RtmpCapabilitySet)

APP_S2J_DECLARE_RECORD(UdpCapabilitySet)
APP_S2J_DECLARE_TEXT(UdpCapabilitySet)
APP_S2J_DECLARE_F2S(UdpCapabilitySet)

APP_S2J_DECLARE_RECORD(HttpStreamingCapabilitySet)
APP_S2J_DECLARE_TEXT(HttpStreamingCapabilitySet)
APP_S2J_DECLARE_F2S(HttpStreamingCapabilitySet)

APP_S2J_DECLARE_RECORD(SrtStreamingCapabilitySet)
APP_S2J_DECLARE_TEXT(SrtStreamingCapabilitySet)
APP_S2J_DECLARE_F2S(SrtStreamingCapabilitySet)

APP_S2J_DECLARE_RECORD(StreamingOutputParameter)
APP_S2J_DECLARE_TEXT(StreamingOutputParameter)
APP_S2J_DECLARE_F2S(StreamingOutputParameter)
APP_S2J_DECLARE_S2F(StreamingOutputParameter)

/* Protocol streams exist only as array elements, keyed by Channel and Index. */

APP_S2J_DECLARE_RECORD(RtspStreamingParameter)
APP_S2J_DECLARE_ARRAY(RtspStreamingParameter)
APP_S2J_DECLARE_UPDATE(RtspStreamingParameter)
APP_S2J_DECLARE_KEYWORD(RtspStreamingParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(RtspStreamingParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(RtspStreamingParameter)
APP_S2J_DECLARE_S2F_ARRAY(RtspStreamingParameter)

APP_S2J_DECLARE_RECORD(RtmpStreamingParameter)
APP_S2J_DECLARE_ARRAY(RtmpStreamingParameter)
APP_S2J_DECLARE_UPDATE(RtmpStreamingParameter)
APP_S2J_DECLARE_KEYWORD(RtmpStreamingParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(RtmpStreamingParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(RtmpStreamingParameter)
APP_S2J_DECLARE_S2F_ARRAY(RtmpStreamingParameter)

APP_S2J_DECLARE_RECORD(UdpStreamingParameter)
APP_S2J_DECLARE_ARRAY(UdpStreamingParameter)
APP_S2J_DECLARE_UPDATE(UdpStreamingParameter)
APP_S2J_DECLARE_KEYWORD(UdpStreamingParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(UdpStreamingParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(UdpStreamingParameter)
APP_S2J_DECLARE_S2F_ARRAY(UdpStreamingParameter)

APP_S2J_DECLARE_RECORD(HttpStreamingParameter)
APP_S2J_DECLARE_ARRAY(HttpStreamingParameter)
APP_S2J_DECLARE_UPDATE(HttpStreamingParameter)
APP_S2J_DECLARE_KEYWORD(HttpStreamingParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(HttpStreamingParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(HttpStreamingParameter)
APP_S2J_DECLARE_S2F_ARRAY(HttpStreamingParameter)

APP_S2J_DECLARE_RECORD(SrtStreamingParameter)
APP_S2J_DECLARE_ARRAY(SrtStreamingParameter)
APP_S2J_DECLARE_UPDATE(SrtStreamingParameter)
APP_S2J_DECLARE_KEYWORD(SrtStreamingParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(SrtStreamingParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(SrtStreamingParameter)
APP_S2J_DECLARE_S2F_ARRAY(SrtStreamingParameter)

APP_S2J_DECLARE_RECORD(RtspServerParameter)
APP_S2J_DECLARE_TEXT(RtspServerParameter)
APP_S2J_DECLARE_F2S(RtspServerParameter)
APP_S2J_DECLARE_S2F(RtspServerParameter)

APP_S2J_DECLARE_RECORD(HttpStreamingServerParameter)
APP_S2J_DECLARE_TEXT(HttpStreamingServerParameter)
APP_S2J_DECLARE_F2S(HttpStreamingServerParameter)
APP_S2J_DECLARE_S2F(HttpStreamingServerParameter)

APP_S2J_DECLARE_RECORD(OnvifServerParameter)
APP_S2J_DECLARE_TEXT(OnvifServerParameter)
APP_S2J_DECLARE_F2S(OnvifServerParameter)
APP_S2J_DECLARE_S2F(OnvifServerParameter)

APP_S2J_DECLARE_RECORD(WebServerParameter)
APP_S2J_DECLARE_TEXT(WebServerParameter)
APP_S2J_DECLARE_F2S(WebServerParameter)
APP_S2J_DECLARE_S2F(WebServerParameter)

APP_S2J_DECLARE_RECORD(StreamingInputCapabilitySet)
APP_S2J_DECLARE_TEXT(StreamingInputCapabilitySet)
APP_S2J_DECLARE_F2S(StreamingInputCapabilitySet)

APP_S2J_DECLARE_RECORD(StreamingInputParameter)
APP_S2J_DECLARE_ARRAY(StreamingInputParameter)
APP_S2J_DECLARE_UPDATE(StreamingInputParameter)
APP_S2J_DECLARE_KEYWORD(StreamingInputParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(StreamingInputParameter, uint32_t, Index)
APP_S2J_DECLARE_F2S_ARRAY(StreamingInputParameter)
APP_S2J_DECLARE_S2F_ARRAY(StreamingInputParameter)

/* A status: no keyed update and no file. */
APP_S2J_DECLARE_RECORD(StreamingInputStatus)
APP_S2J_DECLARE_ARRAY(StreamingInputStatus)
APP_S2J_DECLARE_GET_INT_KEYWORD(StreamingInputStatus, uint32_t, Index)

APP_S2J_DECLARE_RECORD(StreamingInputStatusChange)
APP_S2J_DECLARE_TEXT(StreamingInputStatusChange)

/* json_to_struct_StreamingInputUseCountKeyword reads the whole record as
 * json_to_struct_StreamingInputUseCount does, but with every key required:
 * an absent key fails like one of the wrong JSON type.  No family calls it. */
APP_S2J_DECLARE_RECORD(StreamingInputUseCount)
APP_S2J_DECLARE_TEXT(StreamingInputUseCount)
int json_to_struct_StreamingInputUseCountKeyword(StreamingInputUseCount *struct_ptr, const cJSON *json);

/* ======================================================================
 * Network and serial records
 * ====================================================================== */

APP_S2J_DECLARE_RECORD(NetworkCapabilitySet)
APP_S2J_DECLARE_TEXT(NetworkCapabilitySet)
APP_S2J_DECLARE_F2S(NetworkCapabilitySet)

APP_S2J_DECLARE_RECORD(NetworkInterface)
APP_S2J_DECLARE_ARRAY(NetworkInterface)
APP_S2J_DECLARE_F2S_ARRAY(NetworkInterface)

APP_S2J_DECLARE_RECORD(NetworkInterfaceStatus)
APP_S2J_DECLARE_ARRAY(NetworkInterfaceStatus)
APP_S2J_DECLARE_GET_STR_KEYWORD(NetworkInterfaceStatus, InterfaceName)

APP_S2J_DECLARE_RECORD(NetworkLANParameter)
APP_S2J_DECLARE_ARRAY(NetworkLANParameter)
APP_S2J_DECLARE_UPDATE(NetworkLANParameter)
APP_S2J_DECLARE_KEYWORD(NetworkLANParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(NetworkLANParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(NetworkLANParameter)
APP_S2J_DECLARE_S2F_ARRAY(NetworkLANParameter)

APP_S2J_DECLARE_RECORD(NetworkRouteParameter)
APP_S2J_DECLARE_TEXT(NetworkRouteParameter)
APP_S2J_DECLARE_F2S(NetworkRouteParameter)
APP_S2J_DECLARE_S2F(NetworkRouteParameter)

APP_S2J_DECLARE_RECORD(NetworkWIFIParameter)
APP_S2J_DECLARE_ARRAY(NetworkWIFIParameter)
APP_S2J_DECLARE_UPDATE(NetworkWIFIParameter)
APP_S2J_DECLARE_KEYWORD(NetworkWIFIParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(NetworkWIFIParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(NetworkWIFIParameter)
APP_S2J_DECLARE_S2F_ARRAY(NetworkWIFIParameter)

/* A scan request arrives as a tree only. */
APP_S2J_DECLARE_RECORD(ScanWIFIHotspotParameter)
APP_S2J_DECLARE_C2S(ScanWIFIHotspotParameter)

APP_S2J_DECLARE_RECORD(WIFIHotspot)
APP_S2J_DECLARE_ARRAY(WIFIHotspot)
APP_S2J_DECLARE_F2S_ARRAY(WIFIHotspot)

APP_S2J_DECLARE_RECORD(SerialPortInterface)
APP_S2J_DECLARE_ARRAY(SerialPortInterface)
APP_S2J_DECLARE_F2S_ARRAY(SerialPortInterface)

APP_S2J_DECLARE_RECORD(SerialPortParameter)
APP_S2J_DECLARE_ARRAY(SerialPortParameter)
APP_S2J_DECLARE_UPDATE(SerialPortParameter)
APP_S2J_DECLARE_KEYWORD(SerialPortParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(SerialPortParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(SerialPortParameter)
APP_S2J_DECLARE_S2F_ARRAY(SerialPortParameter)

APP_S2J_DECLARE_RECORD(SerialPortNetworkTransferParameter)
APP_S2J_DECLARE_ARRAY(SerialPortNetworkTransferParameter)
APP_S2J_DECLARE_UPDATE(SerialPortNetworkTransferParameter)
APP_S2J_DECLARE_KEYWORD(SerialPortNetworkTransferParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(SerialPortNetworkTransferParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(SerialPortNetworkTransferParameter)
APP_S2J_DECLARE_S2F_ARRAY(SerialPortNetworkTransferParameter)

/* ======================================================================
 * Storage, recording and snapshot records
 * ====================================================================== */

/* Emitter and reader only. */
APP_S2J_DECLARE_RECORD(StorageInterface)

APP_S2J_DECLARE_RECORD(StorageDevice)
APP_S2J_DECLARE_ARRAY(StorageDevice)
APP_S2J_DECLARE_F2S_ARRAY(StorageDevice)

APP_S2J_DECLARE_RECORD(StorageDeviceStatus)
APP_S2J_DECLARE_ARRAY(StorageDeviceStatus)
APP_S2J_DECLARE_GET_STR_KEYWORD(StorageDeviceStatus, StorageDeviceName)

APP_S2J_DECLARE_RECORD(DiskGroupCapabilitySet)
APP_S2J_DECLARE_TEXT(DiskGroupCapabilitySet)
APP_S2J_DECLARE_F2S(DiskGroupCapabilitySet)

APP_S2J_DECLARE_RECORD(DiskGroupParameter)
APP_S2J_DECLARE_ARRAY(DiskGroupParameter)
APP_S2J_DECLARE_UPDATE(DiskGroupParameter)
APP_S2J_DECLARE_KEYWORD(DiskGroupParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(DiskGroupParameter, StorageDeviceName)
APP_S2J_DECLARE_F2S_ARRAY(DiskGroupParameter)
APP_S2J_DECLARE_S2F_ARRAY(DiskGroupParameter)

/* Requests: read from a tree or text, never made into text. */
APP_S2J_DECLARE_RECORD(FormatDiskParameter)
APP_S2J_DECLARE_C2S(FormatDiskParameter)
APP_S2J_DECLARE_J2S(FormatDiskParameter)

APP_S2J_DECLARE_RECORD(FormatDiskProgress)
APP_S2J_DECLARE_TEXT(FormatDiskProgress)
APP_S2J_DECLARE_GET_STR_KEYWORD(FormatDiskProgress, StorageDeviceName)

APP_S2J_DECLARE_RECORD(RemoveStorageDeviceParameter)
APP_S2J_DECLARE_C2S(RemoveStorageDeviceParameter)
APP_S2J_DECLARE_J2S(RemoveStorageDeviceParameter)

APP_S2J_DECLARE_RECORD(RecordCapabilitySet)
APP_S2J_DECLARE_TEXT(RecordCapabilitySet)
APP_S2J_DECLARE_F2S(RecordCapabilitySet)

APP_S2J_DECLARE_RECORD(RecordParameter)
APP_S2J_DECLARE_ARRAY(RecordParameter)
APP_S2J_DECLARE_UPDATE(RecordParameter)
APP_S2J_DECLARE_KEYWORD(RecordParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(RecordParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(RecordParameter)
APP_S2J_DECLARE_S2F_ARRAY(RecordParameter)

APP_S2J_DECLARE_RECORD(RecordStatus)
APP_S2J_DECLARE_ARRAY(RecordStatus)
APP_S2J_DECLARE_GET_INT_KEYWORD(RecordStatus, uint32_t, Channel)

APP_S2J_DECLARE_RECORD(SnapshotCapabilitySet)
APP_S2J_DECLARE_ARRAY(SnapshotCapabilitySet)
APP_S2J_DECLARE_F2S_ARRAY(SnapshotCapabilitySet)

APP_S2J_DECLARE_RECORD(SnapshotParameter)
APP_S2J_DECLARE_ARRAY(SnapshotParameter)
APP_S2J_DECLARE_UPDATE(SnapshotParameter)
APP_S2J_DECLARE_KEYWORD(SnapshotParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(SnapshotParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(SnapshotParameter)
APP_S2J_DECLARE_S2F_ARRAY(SnapshotParameter)

APP_S2J_DECLARE_RECORD(SnapshotStatus)
APP_S2J_DECLARE_ARRAY(SnapshotStatus)
APP_S2J_DECLARE_GET_INT_KEYWORD(SnapshotStatus, uint32_t, Channel)

/* The single-picture request is read from a tree only; its answer is only
 * made into text. */
APP_S2J_DECLARE_RECORD(SnapshotInputParameter)
APP_S2J_DECLARE_C2S(SnapshotInputParameter)

APP_S2J_DECLARE_RECORD(SnapshotResult)
APP_S2J_DECLARE_S2J(SnapshotResult)

/* ======================================================================
 * Output and display records
 * ====================================================================== */

APP_S2J_DECLARE_RECORD(VideoOutputCapabilitySet)
APP_S2J_DECLARE_ARRAY(VideoOutputCapabilitySet)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputCapabilitySet)

APP_S2J_DECLARE_RECORD(VideoOutputInterface)
APP_S2J_DECLARE_ARRAY(VideoOutputInterface)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputInterface)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputInterface)

APP_S2J_DECLARE_RECORD(VideoOutputInterfaceParameter)
APP_S2J_DECLARE_ARRAY(VideoOutputInterfaceParameter)
APP_S2J_DECLARE_UPDATE(VideoOutputInterfaceParameter)
APP_S2J_DECLARE_KEYWORD(VideoOutputInterfaceParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(VideoOutputInterfaceParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputInterfaceParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputInterfaceParameter)

APP_S2J_DECLARE_RECORD(VideoOutputDisplayParameter)
APP_S2J_DECLARE_TEXT(VideoOutputDisplayParameter)
APP_S2J_DECLARE_F2S(VideoOutputDisplayParameter)
APP_S2J_DECLARE_S2F(VideoOutputDisplayParameter)

APP_S2J_DECLARE_RECORD(VideoOutputScreenSplitParameter)
APP_S2J_DECLARE_ARRAY(VideoOutputScreenSplitParameter)
APP_S2J_DECLARE_UPDATE(VideoOutputScreenSplitParameter)
APP_S2J_DECLARE_KEYWORD(VideoOutputScreenSplitParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(VideoOutputScreenSplitParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputScreenSplitParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputScreenSplitParameter)

APP_S2J_DECLARE_RECORD(VideoOutputSourceParameter)
APP_S2J_DECLARE_ARRAY(VideoOutputSourceParameter)
APP_S2J_DECLARE_UPDATE(VideoOutputSourceParameter)
APP_S2J_DECLARE_KEYWORD(VideoOutputSourceParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(VideoOutputSourceParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputSourceParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputSourceParameter)

APP_S2J_DECLARE_RECORD(VideoOutputPlaylistParameter)
APP_S2J_DECLARE_ARRAY(VideoOutputPlaylistParameter)
APP_S2J_DECLARE_UPDATE(VideoOutputPlaylistParameter)
APP_S2J_DECLARE_KEYWORD(VideoOutputPlaylistParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(VideoOutputPlaylistParameter, uint32_t, Index)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputPlaylistParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputPlaylistParameter)

APP_S2J_DECLARE_RECORD(VideoOutSourceChange)
APP_S2J_DECLARE_TEXT(VideoOutSourceChange)

APP_S2J_DECLARE_RECORD(AudioOutSourceChange)
APP_S2J_DECLARE_TEXT(AudioOutSourceChange)

APP_S2J_DECLARE_RECORD(AudioOutputCapabilitySet)
APP_S2J_DECLARE_ARRAY(AudioOutputCapabilitySet)
APP_S2J_DECLARE_F2S_ARRAY(AudioOutputCapabilitySet)

APP_S2J_DECLARE_RECORD(AudioOutputInterface)
APP_S2J_DECLARE_ARRAY(AudioOutputInterface)
APP_S2J_DECLARE_F2S_ARRAY(AudioOutputInterface)
APP_S2J_DECLARE_S2F_ARRAY(AudioOutputInterface)

APP_S2J_DECLARE_RECORD(AudioOutputInterfaceParameter)
APP_S2J_DECLARE_ARRAY(AudioOutputInterfaceParameter)
APP_S2J_DECLARE_UPDATE(AudioOutputInterfaceParameter)
APP_S2J_DECLARE_KEYWORD(AudioOutputInterfaceParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(AudioOutputInterfaceParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(AudioOutputInterfaceParameter)
APP_S2J_DECLARE_S2F_ARRAY(AudioOutputInterfaceParameter)

APP_S2J_DECLARE_RECORD(AudioOutputParameter)
APP_S2J_DECLARE_ARRAY(AudioOutputParameter)
APP_S2J_DECLARE_UPDATE(AudioOutputParameter)
APP_S2J_DECLARE_KEYWORD(AudioOutputParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(AudioOutputParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(AudioOutputParameter)
APP_S2J_DECLARE_S2F_ARRAY(AudioOutputParameter)

APP_S2J_DECLARE_RECORD(VideoDecodeCapabilitySet)
APP_S2J_DECLARE_TEXT(VideoDecodeCapabilitySet)
APP_S2J_DECLARE_F2S(VideoDecodeCapabilitySet)

APP_S2J_DECLARE_RECORD(AudioDecodeCapabilitySet)
APP_S2J_DECLARE_TEXT(AudioDecodeCapabilitySet)
APP_S2J_DECLARE_F2S(AudioDecodeCapabilitySet)

APP_S2J_DECLARE_RECORD(ScreenshotCapabilitySet)
APP_S2J_DECLARE_C2S(ScreenshotCapabilitySet)
APP_S2J_DECLARE_J2S(ScreenshotCapabilitySet)
APP_S2J_DECLARE_F2S(ScreenshotCapabilitySet)

APP_S2J_DECLARE_RECORD(ScreenshotParameter)
APP_S2J_DECLARE_ARRAY(ScreenshotParameter)
APP_S2J_DECLARE_UPDATE(ScreenshotParameter)
APP_S2J_DECLARE_KEYWORD(ScreenshotParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(ScreenshotParameter, uint32_t, Index)
APP_S2J_DECLARE_F2S_ARRAY(ScreenshotParameter)
APP_S2J_DECLARE_S2F_ARRAY(ScreenshotParameter)

APP_S2J_DECLARE_RECORD(ScreenshotListParameter)
APP_S2J_DECLARE_ARRAY(ScreenshotListParameter)
APP_S2J_DECLARE_UPDATE(ScreenshotListParameter)
APP_S2J_DECLARE_KEYWORD(ScreenshotListParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(ScreenshotListParameter, uint32_t, Index)
APP_S2J_DECLARE_F2S_ARRAY(ScreenshotListParameter)
APP_S2J_DECLARE_S2F_ARRAY(ScreenshotListParameter)

APP_S2J_DECLARE_RECORD(VideoOutputScreenshotParameter)
APP_S2J_DECLARE_ARRAY(VideoOutputScreenshotParameter)
APP_S2J_DECLARE_UPDATE(VideoOutputScreenshotParameter)
APP_S2J_DECLARE_KEYWORD(VideoOutputScreenshotParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(VideoOutputScreenshotParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputScreenshotParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputScreenshotParameter)

APP_S2J_DECLARE_RECORD(VideoOutputOSDParameter)
APP_S2J_DECLARE_ARRAY(VideoOutputOSDParameter)
APP_S2J_DECLARE_UPDATE(VideoOutputOSDParameter)
APP_S2J_DECLARE_KEYWORD(VideoOutputOSDParameter)
APP_S2J_DECLARE_GET_INT_KEYWORD(VideoOutputOSDParameter, uint32_t, Channel)
APP_S2J_DECLARE_F2S_ARRAY(VideoOutputOSDParameter)
APP_S2J_DECLARE_S2F_ARRAY(VideoOutputOSDParameter)

APP_S2J_DECLARE_RECORD(WatermarkOSDParameter)
APP_S2J_DECLARE_ARRAY(WatermarkOSDParameter)
APP_S2J_DECLARE_UPDATE(WatermarkOSDParameter)
APP_S2J_DECLARE_KEYWORD(WatermarkOSDParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(WatermarkOSDParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(WatermarkOSDParameter)
APP_S2J_DECLARE_S2F_ARRAY(WatermarkOSDParameter)

APP_S2J_DECLARE_RECORD(WatermarkPictureParameter)
APP_S2J_DECLARE_ARRAY(WatermarkPictureParameter)
APP_S2J_DECLARE_UPDATE(WatermarkPictureParameter)
APP_S2J_DECLARE_KEYWORD(WatermarkPictureParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(WatermarkPictureParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(WatermarkPictureParameter)
APP_S2J_DECLARE_S2F_ARRAY(WatermarkPictureParameter)

APP_S2J_DECLARE_RECORD(WatermarkDotmatrixParameter)
APP_S2J_DECLARE_ARRAY(WatermarkDotmatrixParameter)
APP_S2J_DECLARE_UPDATE(WatermarkDotmatrixParameter)
APP_S2J_DECLARE_KEYWORD(WatermarkDotmatrixParameter)
APP_S2J_DECLARE_GET_STR_KEYWORD(WatermarkDotmatrixParameter, InterfaceName)
APP_S2J_DECLARE_F2S_ARRAY(WatermarkDotmatrixParameter)
APP_S2J_DECLARE_S2F_ARRAY(WatermarkDotmatrixParameter)

APP_S2J_DECLARE_RECORD(UploadWatermarkPictureParameter)
APP_S2J_DECLARE_TEXT(UploadWatermarkPictureParameter)

#ifdef __cplusplus
}
#endif

#endif /* APP_S2J_H */
