// file2struct_def.cpp - the file families; from line 115 their list: per type a
// line for reading, then one for writing.  Whole texts move between files and
// the text families; their one diagnostic of their own is a missing file name.
#include "s2j_families.h"

#ifndef S2J_REGISTRY_PASS
#include <sys/stat.h>
#include <unistd.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include "s2j_messages.h"

namespace s2j {
namespace {

// The whole file as a nul-terminated text, or null with *status -15 when the
// file cannot be opened (or is a directory) or its text cannot be held.  The
// size comes from seeking to the end; the text ends where fread() stopped.
char *read_text(const char *path, int *status) {
    *status = -15;
    FILE *f = std::fopen(path, "r");
    if (f == nullptr) return nullptr;
    struct stat st;
    if (fstat(fileno(f), &st) == 0 && S_ISDIR(st.st_mode)) {
        std::fclose(f);  // a directory opens, but holds no text to read
        return nullptr;
    }
    std::fseek(f, 0, SEEK_END);
    long size = std::ftell(f);
    std::fseek(f, 0, SEEK_SET);
    if (size < 0) size = 0;  // not seekable: read as empty
    char *text = static_cast<char *>(std::malloc(static_cast<size_t>(size) + 1));
    if (text == nullptr) {
        std::fclose(f);
        return nullptr;
    }
    size_t got = std::fread(text, 1, static_cast<size_t>(size), f);
    text[got] = '\0';
    std::fclose(f);
    *status = 0;
    return text;
}

// Writes text (owned, freed here) to path in place: -15 without text, -7
// when the file cannot be opened or is written short.  The descriptor is
// synced before the stream is closed, as the stream hands it over.
int write_text(const char *path, char *text) {
    if (text == nullptr) return -15;
    FILE *f = std::fopen(path, "w");
    if (f == nullptr) {
        std::perror("fopen");
        std::free(text);
        return -7;
    }
    size_t len = std::strlen(text);
    int rc = 0;
    if (std::fwrite(text, 1, len, f) < len) {
        std::perror("fwrite");
        rc = -7;
    }
    fsync(fileno(f));
    std::fclose(f);
    std::free(text);
    return rc;
}

}  // namespace

// Kept out of line: each of the many members below is then a tail call.
__attribute__((noinline)) int file_f2s(Site s, const char *type, const char *fine_name, void *rec, int (*j2s)(const char *, void *)) {
    if (fine_name == nullptr) {
        diag(s, type, S2J_MSG_FINE_NAME_EMPTY);
        return -2;
    }
    int rc;
    char *text = read_text(fine_name, &rc);
    if (text == nullptr) return rc;
    rc = j2s(text, rec);
    std::free(text);
    return rc;
}

__attribute__((noinline)) int file_f2s_array(Site s, const char *type, const char *fine_name, void *arr, uint32_t *count,
                   int (*j2s_array)(const char *, void *, uint32_t *)) {
    if (fine_name == nullptr) {
        diag(s, type, S2J_MSG_FINE_NAME_EMPTY);
        return -2;
    }
    int rc;
    char *text = read_text(fine_name, &rc);
    if (text == nullptr) return rc;
    rc = j2s_array(text, arr, count);
    std::free(text);
    return rc;
}

__attribute__((noinline)) int file_s2f(Site s, const char *type, const char *fine_name, char *(*make_text)(const void *, uint32_t),
             const void *data, uint32_t count) {
    if (fine_name == nullptr) {
        diag(s, type, S2J_MSG_FINE_NAME_EMPTY);
        return -2;
    }
    return write_text(fine_name, make_text(data, count));
}

}  // namespace s2j
// Files always hold indented JSON: the writers ask for formatted text.
#define S2J_DEF_F2S(T) S2J_API int f2s_##T(const char *fine_name, T *struct_ptr) { S2J_SITE(F2S); return ::s2j::file_f2s(site, #T, fine_name, struct_ptr, +[](const char *t, void *p) { return j2s_##T(t, static_cast<T *>(p)); }); }
#define S2J_DEF_S2F(T) S2J_API int s2f_##T(const char *fine_name, const T *struct_ptr) { S2J_SITE(S2F); return ::s2j::file_s2f(site, #T, fine_name, +[](const void *p, uint32_t) { return s2j_##T(static_cast<const T *>(p), 1); }, struct_ptr, 1); }
#define S2J_DEF_F2S_ARRAY(T) S2J_API int f2s_array_##T(const char *fine_name, T *struct_array, uint32_t *struct_array_size) { S2J_SITE(F2S_ARRAY); return ::s2j::file_f2s_array(site, #T, fine_name, struct_array, struct_array_size, +[](const char *t, void *p, uint32_t *n) { return j2s_array_##T(t, static_cast<T *>(p), n); }); }
#define S2J_DEF_S2F_ARRAY(T) S2J_API int s2f_array_##T(const char *fine_name, const T *struct_array, uint32_t struct_array_size) { S2J_SITE(S2F_ARRAY); return ::s2j::file_s2f(site, #T, fine_name, +[](const void *p, uint32_t n) { return s2j_array_##T(static_cast<const T *>(p), n, 1); }, struct_array, struct_array_size); }
#endif  // S2J_REGISTRY_PASS
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
