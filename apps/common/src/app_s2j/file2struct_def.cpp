// file2struct_def.cpp - instantiation list of the file families: f2s_T,
// s2f_T, f2s_array_T and s2f_array_T for the record types that the device
// keeps in files, one record or one record array per file.
//
// The list begins on line 115 and is the last thing in this file.  Each line
// of it expands one family member, and that line is what the member's
// diagnostic prints, so callers' logs name it: lines of the list never move.
// Per type, its reading member comes first and its writing member on the next
// line, if it has one (capability sets are only read); one blank line
// separates types.  The text and tree families of the same types are listed
// in app_s2j.cpp, from its line 6, in the same way.
//
// Adding a type kept in files: append, after one blank line below the last
// type, S2J_DEF_F2S(T) or S2J_DEF_F2S_ARRAY(T) and, when the library writes
// the type, S2J_DEF_S2F(T) or S2J_DEF_S2F_ARRAY(T) on the next line; then set
// the closing guard after the list to the new last line.  The type's text
// members that they call (app_s2j.cpp) must exist.
//
// What one line expands to, for example S2J_DEF_F2S(DeviceInfo) on line 120:
//
//   int f2s_DeviceInfo(const char *fine_name, DeviceInfo *struct_ptr) {
//       const Site site{__FILE__, 120, Family::F2S};
//       return file_f2s(site, "DeviceInfo", fine_name, struct_ptr,
//                       [](const char *t, void *p) { return j2s_DeviceInfo(t, (DeviceInfo *)p); });
//   }
//
// The member captures its site (this file, the line of the list, the family)
// and makes a tail call to the file engine (s2j_files.cpp), passing the
// type's name for the diagnostic and the type's text member that does the
// converting.  Its one diagnostic, for a null file name, then reads
//
//   "\033[1;31m<ERROR! <this file>:120, f2s_DeviceInfo>: fine_name is empty!\n\033[0m"
//
// Statuses of the file members:
//
//   situation                                 status  report
//   fine_name null                            -2      the diagnostic above
//   file not opened for reading (or a         -15     none
//   directory), or no memory for its text
//   text not parsed or not convertible        j2s_T's or j2s_array_T's status (-2, -1) and diagnostic
//   record or array not turned into text      -15     s2j_T's or s2j_array_T's diagnostic
//   file not opened for writing               -7      perror("fopen")
//   file written short                        -7      perror("fwrite"); the file keeps what was written
//   the text read or written whole            0, or the status of j2s_T or j2s_array_T
//
// Reading: the file's size comes from seeking to its end, and its text ends
// where fread() stops; an empty file is an empty text, which j2s_T refuses.
// Writing: the file is created or truncated in place (no temporary file, no
// rename) and receives the formatted text exactly, with no newline added;
// the stream's descriptor is synced and then the stream is closed, also
// after a short write.  Each call opens and closes its file within the call,
// and frees every buffer it allocates before it returns.
//
// The registry (registry.cpp) includes this file once more with
// S2J_REGISTRY_PASS defined and the four macros defined its own way, to
// record which members each type has and on which line: that pass reads only
// the list.
#include "s2j_families.h"

#ifndef S2J_REGISTRY_PASS
#include "s2j_files.h"

// Each macro below defines a member under its exported name and hands the
// engine a lambda without captures that calls the type's text member, so that
// one engine function serves every type.
// f2s_T(fine_name, struct_ptr): reads the file's text into one record with
// j2s_T.
#define S2J_DEF_F2S(T)                                                                             \
    S2J_API int f2s_##T(const char *fine_name, T *struct_ptr) {                                    \
        S2J_SITE(F2S);                                                                             \
        return ::s2j::file_f2s(site, #T, fine_name, struct_ptr, S2J_J2S_OF(T));                    \
    }
#define S2J_J2S_OF(T) +[](const char *t, void *p) { return j2s_##T(t, static_cast<T *>(p)); }

// s2f_T(fine_name, struct_ptr): writes one record to the file as indented
// text (files always hold the formatted form of s2j_T).
#define S2J_DEF_S2F(T)                                                                             \
    S2J_API int s2f_##T(const char *fine_name, const T *struct_ptr) {                              \
        S2J_SITE(S2F);                                                                             \
        return ::s2j::file_s2f(site, #T, fine_name, S2J_S2J_OF(T), struct_ptr, 1);                 \
    }
#define S2J_S2J_OF(T) +[](const void *p, uint32_t) { return s2j_##T(static_cast<const T *>(p), 1); }

// f2s_array_T(fine_name, struct_array, struct_array_size): reads the file's
// text into a record array with j2s_array_T (a null struct_array asks only
// for the count).
#define S2J_DEF_F2S_ARRAY(T)                                                                       \
    S2J_API int f2s_array_##T(const char *fine_name, T *struct_array, uint32_t *struct_array_size) { \
        S2J_SITE(F2S_ARRAY);                                                                       \
        return ::s2j::file_f2s_array(site, #T, fine_name, struct_array, struct_array_size,         \
                                     S2J_J2S_ARRAY_OF(T));                                         \
    }
#define S2J_J2S_ARRAY_OF(T) \
    +[](const char *t, void *p, uint32_t *n) { return j2s_array_##T(t, static_cast<T *>(p), n); }

// s2f_array_T(fine_name, struct_array, struct_array_size): writes a record
// array to the file as indented text.
#define S2J_DEF_S2F_ARRAY(T)                                                                       \
    S2J_API int s2f_array_##T(const char *fine_name, const T *struct_array,                        \
                              uint32_t struct_array_size) {                                        \
        S2J_SITE(S2F_ARRAY);                                                                       \
        return ::s2j::file_s2f(site, #T, fine_name, S2J_S2J_ARRAY_OF(T), struct_array,             \
                               struct_array_size);                                                 \
    }
#define S2J_S2J_ARRAY_OF(T) \
    +[](const void *p, uint32_t n) { return s2j_array_##T(static_cast<const T *>(p), n, 1); }

#endif  // S2J_REGISTRY_PASS

// ---- The list -------------------------------------------------------------
// From line 115 to the closing guard after it.  The two guards fail the build
// when a line of the list moves: the guard below when a line is added or taken
// away above the list, the closing guard when one is inside it.
static_assert(__LINE__ == 114, "the instantiation list must begin on line 115");
S2J_DEF_F2S(CrontabCapabilitySet)

S2J_DEF_F2S_ARRAY(CrontabParameter)
S2J_DEF_S2F_ARRAY(CrontabParameter)

S2J_DEF_F2S(DeviceInfo)
S2J_DEF_S2F(DeviceInfo)

S2J_DEF_F2S(DeviceCapabilitySet)

S2J_DEF_F2S(AdvancedParameter)
S2J_DEF_S2F(AdvancedParameter)

S2J_DEF_F2S_ARRAY(TimeZone)

S2J_DEF_F2S(TimeZoneParameter)
S2J_DEF_S2F(TimeZoneParameter)

S2J_DEF_F2S_ARRAY(NTPServer)

S2J_DEF_F2S(NTPParameter)
S2J_DEF_S2F(NTPParameter)

S2J_DEF_F2S_ARRAY(CreateUserParameter)
S2J_DEF_S2F_ARRAY(CreateUserParameter)

S2J_DEF_F2S_ARRAY(VideoInputCapabilitySet)

S2J_DEF_F2S_ARRAY(VideoInputInterface)
S2J_DEF_S2F_ARRAY(VideoInputInterface)

S2J_DEF_F2S_ARRAY(VideoInputParameter)
S2J_DEF_S2F_ARRAY(VideoInputParameter)

S2J_DEF_F2S_ARRAY(VideoEncodeCapabilitySet)

S2J_DEF_F2S_ARRAY(VideoEncodeParameter)
S2J_DEF_S2F_ARRAY(VideoEncodeParameter)

S2J_DEF_F2S(VideoEncodeOSDCapabilitySet)

S2J_DEF_F2S_ARRAY(VideoEncodeOSDParameter)
S2J_DEF_S2F_ARRAY(VideoEncodeOSDParameter)

S2J_DEF_F2S_ARRAY(AudioInputCapabilitySet)

S2J_DEF_F2S_ARRAY(AudioInputInterface)
S2J_DEF_S2F_ARRAY(AudioInputInterface)

S2J_DEF_F2S_ARRAY(AudioInputInterfaceParameter)
S2J_DEF_S2F_ARRAY(AudioInputInterfaceParameter)

S2J_DEF_F2S_ARRAY(AudioInputParameter)
S2J_DEF_S2F_ARRAY(AudioInputParameter)

S2J_DEF_F2S(AudioEncodeCapabilitySet)

S2J_DEF_F2S_ARRAY(AudioEncodeParameter)
S2J_DEF_S2F_ARRAY(AudioEncodeParameter)

S2J_DEF_F2S(StreamingOutputCapabilitySet)

S2J_DEF_F2S(RtspCapabilitySet)

S2J_DEF_F2S(RtmpCapabilitySet)

S2J_DEF_F2S(UdpCapabilitySet)

S2J_DEF_F2S(HttpStreamingCapabilitySet)

S2J_DEF_F2S(SrtStreamingCapabilitySet)

S2J_DEF_F2S(StreamingOutputParameter)
S2J_DEF_S2F(StreamingOutputParameter)

S2J_DEF_F2S_ARRAY(RtspStreamingParameter)
S2J_DEF_S2F_ARRAY(RtspStreamingParameter)

S2J_DEF_F2S_ARRAY(RtmpStreamingParameter)
S2J_DEF_S2F_ARRAY(RtmpStreamingParameter)

S2J_DEF_F2S_ARRAY(UdpStreamingParameter)
S2J_DEF_S2F_ARRAY(UdpStreamingParameter)

S2J_DEF_F2S_ARRAY(HttpStreamingParameter)
S2J_DEF_S2F_ARRAY(HttpStreamingParameter)

S2J_DEF_F2S_ARRAY(SrtStreamingParameter)
S2J_DEF_S2F_ARRAY(SrtStreamingParameter)

S2J_DEF_F2S(RtspServerParameter)
S2J_DEF_S2F(RtspServerParameter)

S2J_DEF_F2S(HttpStreamingServerParameter)
S2J_DEF_S2F(HttpStreamingServerParameter)

S2J_DEF_F2S(OnvifServerParameter)
S2J_DEF_S2F(OnvifServerParameter)

S2J_DEF_F2S(WebServerParameter)
S2J_DEF_S2F(WebServerParameter)

S2J_DEF_F2S(StreamingInputCapabilitySet)

S2J_DEF_F2S_ARRAY(StreamingInputParameter)
S2J_DEF_S2F_ARRAY(StreamingInputParameter)

S2J_DEF_F2S(NetworkCapabilitySet)

S2J_DEF_F2S_ARRAY(NetworkInterface)

S2J_DEF_F2S_ARRAY(NetworkLANParameter)
S2J_DEF_S2F_ARRAY(NetworkLANParameter)

S2J_DEF_F2S(NetworkRouteParameter)
S2J_DEF_S2F(NetworkRouteParameter)

S2J_DEF_F2S_ARRAY(NetworkWIFIParameter)
S2J_DEF_S2F_ARRAY(NetworkWIFIParameter)

S2J_DEF_F2S_ARRAY(WIFIHotspot)

S2J_DEF_F2S_ARRAY(SerialPortInterface)

S2J_DEF_F2S_ARRAY(SerialPortParameter)
S2J_DEF_S2F_ARRAY(SerialPortParameter)

S2J_DEF_F2S_ARRAY(SerialPortNetworkTransferParameter)
S2J_DEF_S2F_ARRAY(SerialPortNetworkTransferParameter)

S2J_DEF_F2S_ARRAY(StorageDevice)

S2J_DEF_F2S(DiskGroupCapabilitySet)

S2J_DEF_F2S_ARRAY(DiskGroupParameter)
S2J_DEF_S2F_ARRAY(DiskGroupParameter)

S2J_DEF_F2S(RecordCapabilitySet)

S2J_DEF_F2S_ARRAY(RecordParameter)
S2J_DEF_S2F_ARRAY(RecordParameter)

S2J_DEF_F2S_ARRAY(SnapshotCapabilitySet)

S2J_DEF_F2S_ARRAY(SnapshotParameter)
S2J_DEF_S2F_ARRAY(SnapshotParameter)

S2J_DEF_F2S_ARRAY(VideoOutputCapabilitySet)

S2J_DEF_F2S_ARRAY(VideoOutputInterface)
S2J_DEF_S2F_ARRAY(VideoOutputInterface)

S2J_DEF_F2S_ARRAY(VideoOutputInterfaceParameter)
S2J_DEF_S2F_ARRAY(VideoOutputInterfaceParameter)

S2J_DEF_F2S(VideoOutputDisplayParameter)
S2J_DEF_S2F(VideoOutputDisplayParameter)

S2J_DEF_F2S_ARRAY(VideoOutputScreenSplitParameter)
S2J_DEF_S2F_ARRAY(VideoOutputScreenSplitParameter)

S2J_DEF_F2S_ARRAY(VideoOutputSourceParameter)
S2J_DEF_S2F_ARRAY(VideoOutputSourceParameter)

S2J_DEF_F2S_ARRAY(VideoOutputPlaylistParameter)
S2J_DEF_S2F_ARRAY(VideoOutputPlaylistParameter)

S2J_DEF_F2S_ARRAY(AudioOutputCapabilitySet)

S2J_DEF_F2S_ARRAY(AudioOutputInterface)
S2J_DEF_S2F_ARRAY(AudioOutputInterface)

S2J_DEF_F2S_ARRAY(AudioOutputInterfaceParameter)
S2J_DEF_S2F_ARRAY(AudioOutputInterfaceParameter)

S2J_DEF_F2S_ARRAY(AudioOutputParameter)
S2J_DEF_S2F_ARRAY(AudioOutputParameter)

S2J_DEF_F2S(VideoDecodeCapabilitySet)

S2J_DEF_F2S(AudioDecodeCapabilitySet)

S2J_DEF_F2S(ScreenshotCapabilitySet)

S2J_DEF_F2S_ARRAY(ScreenshotParameter)
S2J_DEF_S2F_ARRAY(ScreenshotParameter)

S2J_DEF_F2S_ARRAY(ScreenshotListParameter)
S2J_DEF_S2F_ARRAY(ScreenshotListParameter)

S2J_DEF_F2S_ARRAY(VideoOutputScreenshotParameter)
S2J_DEF_S2F_ARRAY(VideoOutputScreenshotParameter)

S2J_DEF_F2S_ARRAY(VideoOutputOSDParameter)
S2J_DEF_S2F_ARRAY(VideoOutputOSDParameter)

S2J_DEF_F2S_ARRAY(WatermarkOSDParameter)
S2J_DEF_S2F_ARRAY(WatermarkOSDParameter)

S2J_DEF_F2S_ARRAY(WatermarkPictureParameter)
S2J_DEF_S2F_ARRAY(WatermarkPictureParameter)

S2J_DEF_F2S_ARRAY(WatermarkDotmatrixParameter)
S2J_DEF_S2F_ARRAY(WatermarkDotmatrixParameter)
static_assert(__LINE__ == 319, "the instantiation list must end on line 318");
