// workloads.cpp - values, texts and the three sides of every workload.
#include "workloads.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <unistd.h>

#include <app_s2j.h>

namespace bench {
namespace {

// ---- Field lists, written out once per type for the floor and the peer -----
// I(member) is an integer field, S(member) a string field.
#define DEVICE_TIME_FIELDS(I, S) I(UTCTime) I(Year) I(Month) I(Day) I(Hour) I(Minute) I(Second) I(Millisecond)
#define WATERMARK_OSD_FIELDS(I, S)                                                                  \
    S(InterfaceName) I(Visible) I(AutoFontSize) I(FixedFontSize) I(Bold) I(Stroke) S(ForeColor)      \
    I(ForeAlpha) S(BackColor) I(BackAlpha) I(CoordinateOrigin) I(XCoordinate) I(YCoordinate)         \
    I(CoordinateBase) S(Content) I(PrefixType) S(PrefixContent) I(PostfixType) S(PostfixContent)     \
    I(RotationAngle) I(ArrangementMode) I(Movable) I(MovingStepSize) I(MovingSpeed) I(MovingDirection)
#define VIDEO_ENCODE_FIELDS(I, S)                                                                   \
    I(Channel) I(StreamIndex) I(Enable) I(SelfAdaptiveVideoEncodeSize) I(Width) I(Height)            \
    I(FramerateInteger) I(FramerateDecimal) S(Codec) S(Profile) S(BitrateControl) I(GOP) I(Bitrate)  \
    I(ImageQuality) I(Rotate) I(Mirror) I(Flip) I(Crop) I(CropLeftOffset) I(CropTopOffset)           \
    I(CropRightOffset) I(CropBottomOffset) I(CropOffsetBase)
#define CRONTAB_FIELDS(I, S) I(Index) I(Enable) S(Minute) S(Hour) S(Day) S(Month) S(Weekday) S(Command)
#define NETWORK_LAN_FIELDS(I, S)                                                                    \
    S(InterfaceName) I(IPv4DHCPEnable) S(IPv4Address) S(IPv4Gateway) S(IPv4Netmask)                  \
    S(IPv4PrimaryDNS) S(IPv4SecondaryDNS) I(IPv6Enable) I(IPv6DHCPEnable) S(IPv6Address)             \
    S(IPv6Gateway) I(IPv6SubnetPrefixLength) S(IPv6PrimaryDNS) S(IPv6SecondaryDNS) S(MACAddress)     \
    I(MTUSize)

// Peer emitter: cJSON_AddNumberToObject / cJSON_AddStringToObject per field.
#define PEER_ADD_I(m) cJSON_AddNumberToObject(o, #m, r->m);
#define PEER_ADD_S(m) cJSON_AddStringToObject(o, #m, r->m);
// Peer reader: cJSON_GetObjectItem per field, copies of valueint/valuestring.
#define PEER_GET_I(m)                                                        \
    if ((it = cJSON_GetObjectItem(j, #m)) != nullptr) {                      \
        if (!cJSON_IsNumber(it)) return 0;                                   \
        r->m = static_cast<decltype(r->m)>(it->valueint);                    \
    }
#define PEER_GET_S(m)                                                        \
    if ((it = cJSON_GetObjectItem(j, #m)) != nullptr) {                      \
        if (!cJSON_IsString(it)) return 0;                                   \
        std::strncpy(r->m, it->valuestring, sizeof r->m - 1);                \
        r->m[sizeof r->m - 1] = '\0';                                        \
    }
// Floor emitter: cJSON's cheapest calls, constant keys, referenced strings.
#define FLOOR_ADD_I(m) cJSON_AddItemToObjectCS(o, #m, cJSON_CreateNumber(r->m));
#define FLOOR_ADD_S(m) cJSON_AddItemToObjectCS(o, #m, cJSON_CreateStringReference(r->m));

#define DEFINE_SIDES(T, FIELDS)                                                     \
    [[maybe_unused]] cJSON *peer_emit(const T *r) {                                                \
        cJSON *o = cJSON_CreateObject();                                            \
        if (o == nullptr) return nullptr;                                           \
        FIELDS(PEER_ADD_I, PEER_ADD_S)                                              \
        return o;                                                                   \
    }                                                                               \
    int peer_read(T *r, const cJSON *j) {                                           \
        const cJSON *it;                                                            \
        FIELDS(PEER_GET_I, PEER_GET_S)                                              \
        return 1;                                                                   \
    }                                                                               \
    [[maybe_unused]] cJSON *floor_emit(const T *r) {                                               \
        cJSON *o = cJSON_CreateObject();                                            \
        if (o == nullptr) return nullptr;                                           \
        FIELDS(FLOOR_ADD_I, FLOOR_ADD_S)                                            \
        return o;                                                                   \
    }

DEFINE_SIDES(DeviceTime, DEVICE_TIME_FIELDS)
DEFINE_SIDES(WatermarkOSDParameter, WATERMARK_OSD_FIELDS)
DEFINE_SIDES(VideoEncodeParameter, VIDEO_ENCODE_FIELDS)
DEFINE_SIDES(CrontabParameter, CRONTAB_FIELDS)
DEFINE_SIDES(NetworkLANParameter, NETWORK_LAN_FIELDS)

template <class T>
cJSON *emit_array(cJSON *(*emit)(const T *), const T *a, size_t n) {
    cJSON *list = cJSON_CreateArray();
    for (size_t i = 0; i < n; ++i) cJSON_AddItemToArray(list, emit(a + i));
    return list;
}

template <class T>
int read_array(int (*read)(T *, const cJSON *), T *a, size_t cap, const cJSON *list) {
    size_t i = 0;
    for (const cJSON *e = list->child; e != nullptr && i < cap; e = e->next, ++i)
        if (!read(a + i, e)) return -1;
    return static_cast<int>(i);
}

char *print(cJSON *tree, bool formatted) {
    char *text = formatted ? cJSON_Print(tree) : cJSON_PrintUnformatted(tree);
    cJSON_Delete(tree);
    return text;
}

// ---- Values -----------------------------------------------------------------

uint32_t rng_state = 12345;
uint32_t rnd(uint32_t n) {
    rng_state = rng_state * 1103515245u + 12345u;
    return (rng_state >> 8) % n;
}

template <size_t N>
void set(char (&dst)[N], const std::string &s) {
    std::snprintf(dst, N, "%s", s.c_str());
}

std::string ipv4(uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
    return std::to_string(a) + "." + std::to_string(b) + "." + std::to_string(c) + "." + std::to_string(d);
}

constexpr size_t kN = 64;
constexpr size_t kThroughputN = 1024;  // records of the throughput workload

DeviceTime device_time;
WatermarkOSDParameter watermark;
VideoEncodeParameter encoders[kN];
VideoEncodeParameter encoders_1024[kThroughputN];
CrontabParameter tasks[kN];
NetworkLANParameter lans[kN];

// Texts and trees the read side works on, made once (plain pointers, so that
// they are ready before any constructor runs: the timing driver prepares the
// workloads from one).
char *device_time_text, *watermark_text, *encoders_text, *update_text, *encoders_1024_text;
size_t encoders_1024_bytes;
cJSON *device_time_tree, *watermark_tree, *encoders_tree;

// Destinations (reset by nobody: every read overwrites the same fields).
DeviceTime device_time_out;
WatermarkOSDParameter watermark_out[1];
VideoEncodeParameter encoders_out[kN];
VideoEncodeParameter encoders_1024_out[kThroughputN];
CrontabParameter tasks_out[kN];
NetworkLANParameter lans_out[kN];

// One encoder stream of the ladder, record i of the list.
void make_encoder(VideoEncodeParameter &e, size_t i) {
    static const char *codecs[] = {"H264", "H265", "MJPEG"};
    static const char *profiles[] = {"High", "Main", "Baseline"};
    static const char *controls[] = {"CBR", "VBR", "AVBR"};
    static const uint32_t widths[] = {3840, 1920, 1280, 720};
    static const uint32_t heights[] = {2160, 1080, 720, 576};
    std::memset(&e, 0, sizeof e);
    uint32_t r = rnd(4);
    e.Channel = static_cast<uint32_t>(i / 4 + 1);
    e.StreamIndex = static_cast<uint32_t>(i % 4);
    e.Enable = static_cast<int32_t>(rnd(2));
    e.SelfAdaptiveVideoEncodeSize = 0;
    e.Width = widths[r];
    e.Height = heights[r];
    e.FramerateInteger = static_cast<uint16_t>(rnd(2) ? 30 : 25);
    e.FramerateDecimal = static_cast<uint16_t>(rnd(2) ? 0 : 97);
    set(e.Codec, codecs[rnd(3)]);
    set(e.Profile, profiles[rnd(3)]);
    set(e.BitrateControl, controls[rnd(3)]);
    e.GOP = 30 + rnd(90);
    e.Bitrate = 512 + rnd(16000);
    e.ImageQuality = rnd(6);
    e.Rotate = 90 * rnd(4);
    e.Mirror = static_cast<int32_t>(rnd(2));
    e.Flip = static_cast<int32_t>(rnd(2));
    e.Crop = 0;
    e.CropLeftOffset = rnd(64);
    e.CropTopOffset = rnd(64);
    e.CropRightOffset = rnd(64);
    e.CropBottomOffset = rnd(64);
    e.CropOffsetBase = 1920;
}

void make_values() {
    device_time = {1700000000 + static_cast<int32_t>(rnd(86400)), 2024, 11, 22, 13, 47, 5, 250};

    // Every field, in the struct's order.
    watermark = {"HDMI-OUT-1", 1, 0, 48, 1, 0, "#FFFFFF", 255, "#000000", 96, 0, 1680, 40, 1920,
                 "Studio B - Main Stage Camera", 1, "LIVE", 2, "%Y-%m-%d %H:%M:%S", -15, 1, 0, 4, 30, 2};

    for (size_t i = 0; i < kN; ++i) make_encoder(encoders[i], i);

    static const char *commands[] = {"/usr/sbin/logrotate /etc/logrotate.conf",
                                     "/usr/bin/snapshot --channel 1 --upload",
                                     "/usr/bin/ntpdate -s pool.ntp.example.org",
                                     "/usr/sbin/reboot"};
    for (size_t i = 0; i < kN; ++i) {
        CrontabParameter &t = tasks[i];
        std::memset(&t, 0, sizeof t);
        t.Index = static_cast<uint32_t>(i + 1);
        t.Enable = static_cast<int32_t>(rnd(2));
        set(t.Minute, rnd(2) ? std::to_string(rnd(60)) : "*/15");
        set(t.Hour, rnd(2) ? std::to_string(rnd(24)) : "*");
        set(t.Day, "*");
        set(t.Month, "*");
        set(t.Weekday, rnd(2) ? "1-5" : "*");
        set(t.Command, commands[rnd(4)]);
    }

    for (size_t i = 0; i < kN; ++i) {
        NetworkLANParameter &l = lans[i];
        std::memset(&l, 0, sizeof l);
        uint32_t n = static_cast<uint32_t>(i);
        set(l.InterfaceName, "eth" + std::to_string(n));
        l.IPv4DHCPEnable = static_cast<int32_t>(rnd(2));
        set(l.IPv4Address, ipv4(192, 168, n, 10 + rnd(200)));
        set(l.IPv4Gateway, ipv4(192, 168, n, 1));
        set(l.IPv4Netmask, "255.255.255.0");
        set(l.IPv4PrimaryDNS, ipv4(10, 0, 0, 53));
        set(l.IPv4SecondaryDNS, ipv4(8, 8, 4, 4));
        l.IPv6Enable = 1;
        l.IPv6DHCPEnable = 0;
        set(l.IPv6Address, "fd00:" + std::to_string(n) + "::" + std::to_string(100 + rnd(900)));
        set(l.IPv6Gateway, "fd00:" + std::to_string(n) + "::1");
        l.IPv6SubnetPrefixLength = 64;
        set(l.IPv6PrimaryDNS, "fd00::53");
        set(l.IPv6SecondaryDNS, "2001:4860:4860::8888");
        char mac[18];
        std::snprintf(mac, sizeof mac, "02:1A:%02X:%02X:%02X:%02X", n, rnd(256), rnd(256), rnd(256));
        set(l.MACAddress, mac);
        l.MTUSize = 1500;
    }

    // The throughput workload: the same 64 streams, then more of the ladder.
    std::memcpy(encoders_1024, encoders, sizeof encoders);
    for (size_t i = kN; i < kThroughputN; ++i) make_encoder(encoders_1024[i], i);
}

std::string take(char *text) {
    std::string s = text != nullptr ? text : "";
    std::free(text);
    return s;
}

// ---- File workload ------------------------------------------------------------

char lan_path[512];

int write_file(const char *path, const char *text) {
    if (text == nullptr) return -15;
    FILE *f = std::fopen(path, "w");
    if (f == nullptr) return -7;
    size_t n = std::strlen(text);
    int rc = std::fwrite(text, 1, n, f) == n ? 0 : -7;
    fsync(fileno(f));
    std::fclose(f);
    return rc;
}

char *read_file(const char *path) {
    FILE *f = std::fopen(path, "r");
    if (f == nullptr) return nullptr;
    std::fseek(f, 0, SEEK_END);
    long size = std::ftell(f);
    std::fseek(f, 0, SEEK_SET);
    char *text = static_cast<char *>(std::malloc(static_cast<size_t>(size) + 1));
    if (text != nullptr) text[std::fread(text, 1, static_cast<size_t>(size), f)] = '\0';
    std::fclose(f);
    return text;
}

// ---- Keyed update: the peer ---------------------------------------------------

int peer_update(const char *text, CrontabParameter *a, uint32_t cap) {
    cJSON *list = cJSON_Parse(text);
    if (list == nullptr) return -2;
    int updated = 0;
    for (const cJSON *e = list->child; e != nullptr; e = e->next) {
        const cJSON *key = cJSON_GetObjectItem(e, "Index");
        if (!cJSON_IsNumber(key)) {
            updated = -2;
            break;
        }
        for (uint32_t i = 0; i < cap; ++i) {
            if (a[i].Index != static_cast<uint32_t>(key->valueint)) continue;
            if (!peer_read(&a[i], e)) updated = -1;
            else ++updated;
            break;
        }
        if (updated < 0) break;
    }
    cJSON_Delete(list);
    return updated;
}

// Every op stores its result here, so no call is optimised away.
volatile intptr_t sink;
void keep(intptr_t v) { sink = v; }
void keep_text(char *t) {
    keep(t != nullptr ? static_cast<intptr_t>(std::strlen(t)) : -1);
    std::free(t);
}
void parse_delete(const char *text) {
    cJSON *t = cJSON_Parse(text);
    keep(t != nullptr);
    cJSON_Delete(t);
}

#define OP(w, c, s, body) Op{w, c, s, [] { body; }, nullptr}
#define THROUGHPUT_OP(w, c, s, bytes, body) Op{w, c, s, [] { body; }, &bytes}

const Op kOps[] = {
    // A small record.
    OP("DeviceTime", "s2j", "lib", keep_text(s2j_DeviceTime(&device_time, 0))),
    OP("DeviceTime", "s2j", "floor", keep_text(print(floor_emit(&device_time), false))),
    OP("DeviceTime", "s2j", "peer", keep_text(print(peer_emit(&device_time), false))),
    OP("DeviceTime", "s2j_formatted", "lib", keep_text(s2j_DeviceTime(&device_time, 1))),
    OP("DeviceTime", "s2j_formatted", "floor", keep_text(print(floor_emit(&device_time), true))),
    OP("DeviceTime", "s2j_formatted", "peer", keep_text(print(peer_emit(&device_time), true))),
    OP("DeviceTime", "j2s", "lib", keep(j2s_DeviceTime(device_time_text, &device_time_out))),
    OP("DeviceTime", "j2s", "floor", parse_delete(device_time_text)),
    OP("DeviceTime", "j2s", "peer", {
        cJSON *t = cJSON_Parse(device_time_text);
        keep(peer_read(&device_time_out, t));
        cJSON_Delete(t);
    }),
    OP("DeviceTime", "c2s", "lib", keep(c2s_DeviceTime(device_time_tree, &device_time_out))),
    OP("DeviceTime", "c2s", "peer", keep(peer_read(&device_time_out, device_time_tree))),

    // A large record (an array family type: a one-element array).
    OP("WatermarkOSD", "s2j", "lib", keep_text(s2j_array_WatermarkOSDParameter(&watermark, 1, 0))),
    OP("WatermarkOSD", "s2j", "floor", keep_text(print(emit_array(floor_emit, &watermark, 1), false))),
    OP("WatermarkOSD", "s2j", "peer", keep_text(print(emit_array(peer_emit, &watermark, 1), false))),
    OP("WatermarkOSD", "s2j_formatted", "lib", keep_text(s2j_array_WatermarkOSDParameter(&watermark, 1, 1))),
    OP("WatermarkOSD", "s2j_formatted", "floor", keep_text(print(emit_array(floor_emit, &watermark, 1), true))),
    OP("WatermarkOSD", "s2j_formatted", "peer", keep_text(print(emit_array(peer_emit, &watermark, 1), true))),
    OP("WatermarkOSD", "j2s", "lib", {
        uint32_t n = 1;
        keep(j2s_array_WatermarkOSDParameter(watermark_text, watermark_out, &n));
    }),
    OP("WatermarkOSD", "j2s", "floor", parse_delete(watermark_text)),
    OP("WatermarkOSD", "j2s", "peer", {
        cJSON *t = cJSON_Parse(watermark_text);
        keep(read_array(peer_read, watermark_out, 1, t));
        cJSON_Delete(t);
    }),
    OP("WatermarkOSD", "c2s", "lib", {
        uint32_t n = 1;
        keep(c2s_array_WatermarkOSDParameter(watermark_tree, watermark_out, &n));
    }),
    OP("WatermarkOSD", "c2s", "peer", keep(read_array(peer_read, watermark_out, 1, watermark_tree))),

    // An array of 64 records.
    OP("VideoEncode64", "s2j", "lib", keep_text(s2j_array_VideoEncodeParameter(encoders, kN, 0))),
    OP("VideoEncode64", "s2j", "floor", keep_text(print(emit_array(floor_emit, encoders, kN), false))),
    OP("VideoEncode64", "s2j", "peer", keep_text(print(emit_array(peer_emit, encoders, kN), false))),
    OP("VideoEncode64", "s2j_formatted", "lib", keep_text(s2j_array_VideoEncodeParameter(encoders, kN, 1))),
    OP("VideoEncode64", "s2j_formatted", "floor", keep_text(print(emit_array(floor_emit, encoders, kN), true))),
    OP("VideoEncode64", "s2j_formatted", "peer", keep_text(print(emit_array(peer_emit, encoders, kN), true))),
    OP("VideoEncode64", "j2s", "lib", {
        uint32_t n = kN;
        keep(j2s_array_VideoEncodeParameter(encoders_text, encoders_out, &n));
    }),
    OP("VideoEncode64", "j2s", "floor", parse_delete(encoders_text)),
    OP("VideoEncode64", "j2s", "peer", {
        cJSON *t = cJSON_Parse(encoders_text);
        keep(read_array(peer_read, encoders_out, kN, t));
        cJSON_Delete(t);
    }),
    OP("VideoEncode64", "c2s", "lib", {
        uint32_t n = kN;
        keep(c2s_array_VideoEncodeParameter(encoders_tree, encoders_out, &n));
    }),
    OP("VideoEncode64", "c2s", "peer", keep(read_array(peer_read, encoders_out, kN, encoders_tree))),

    // A keyed update of 4 elements into 64.
    OP("CrontabUpdate4of64", "update", "lib", {
        uint32_t n = kN;
        keep(j2s_array_update_CrontabParameter(update_text, tasks_out, &n));
    }),
    OP("CrontabUpdate4of64", "update", "floor", parse_delete(update_text)),
    OP("CrontabUpdate4of64", "update", "peer", keep(peer_update(update_text, tasks_out, kN))),

    // A file save and load of 64 records.
    OP("NetworkLAN64File", "save", "lib", keep(s2f_array_NetworkLANParameter(lan_path, lans, kN))),
    OP("NetworkLAN64File", "save", "floor", keep(write_file(lan_path, print(emit_array(floor_emit, lans, kN), true)) + 0)),
    OP("NetworkLAN64File", "save", "peer", keep(write_file(lan_path, print(emit_array(peer_emit, lans, kN), true)) + 0)),
    OP("NetworkLAN64File", "load", "lib", {
        uint32_t n = kN;
        keep(f2s_array_NetworkLANParameter(lan_path, lans_out, &n));
    }),
    OP("NetworkLAN64File", "load", "floor", {
        char *text = read_file(lan_path);
        cJSON *t = cJSON_Parse(text);
        keep(t != nullptr);
        cJSON_Delete(t);
        std::free(text);
    }),
    OP("NetworkLAN64File", "load", "peer", {
        char *text = read_file(lan_path);
        cJSON *t = cJSON_Parse(text);
        keep(read_array(peer_read, lans_out, kN, t));
        cJSON_Delete(t);
        std::free(text);
    }),

    // Throughput: 1024 records written and read (compact text), MB/s of text.
    THROUGHPUT_OP("VideoEncode1024", "s2j", "lib", encoders_1024_bytes,
                  keep_text(s2j_array_VideoEncodeParameter(encoders_1024, kThroughputN, 0))),
    THROUGHPUT_OP("VideoEncode1024", "s2j", "floor", encoders_1024_bytes,
                  keep_text(print(emit_array(floor_emit, encoders_1024, kThroughputN), false))),
    THROUGHPUT_OP("VideoEncode1024", "s2j", "peer", encoders_1024_bytes,
                  keep_text(print(emit_array(peer_emit, encoders_1024, kThroughputN), false))),
    THROUGHPUT_OP("VideoEncode1024", "j2s", "lib", encoders_1024_bytes, {
        uint32_t n = kThroughputN;
        keep(j2s_array_VideoEncodeParameter(encoders_1024_text, encoders_1024_out, &n));
    }),
    THROUGHPUT_OP("VideoEncode1024", "j2s", "floor", encoders_1024_bytes, parse_delete(encoders_1024_text)),
    THROUGHPUT_OP("VideoEncode1024", "j2s", "peer", encoders_1024_bytes, {
        cJSON *t = cJSON_Parse(encoders_1024_text);
        keep(read_array(peer_read, encoders_1024_out, kThroughputN, t));
        cJSON_Delete(t);
    }),
};

}  // namespace

const Op *ops(size_t *count) {
    *count = sizeof kOps / sizeof kOps[0];
    return kOps;
}

// ---- Preparation, and agreement of the three sides ---------------------------------

namespace {

bool agree(const char *what, const std::string &a, const std::string &b) {
    if (a == b) return true;
    std::fprintf(stderr, "bench: %s: outputs differ\n", what);
    return false;
}

template <class T>
bool same_records(const char *what, const T *a, const T *b, size_t n) {
    if (std::memcmp(a, b, n * sizeof(T)) == 0) return true;
    std::fprintf(stderr, "bench: %s: records differ\n", what);
    return false;
}

template <class T>
bool outputs_agree(const char *what, char *lib, cJSON *(*floor)(const T *), cJSON *(*peer)(const T *), const T *a,
                   size_t n, bool formatted, bool single) {
    std::string l = take(lib);
    std::string f = take(print(single ? floor(a) : emit_array(floor, a, n), formatted));
    std::string p = take(print(single ? peer(a) : emit_array(peer, a, n), formatted));
    return !l.empty() && agree(what, l, f) && agree(what, l, p);
}

}  // namespace

bool prepare() {
    make_values();
    const char *dir = std::getenv("TMPDIR");
    std::snprintf(lan_path, sizeof lan_path, "%s/app_s2j_bench_lan.json", dir != nullptr ? dir : "/tmp");
    bool ok = true;
    for (int formatted = 0; formatted < 2; ++formatted) {
        ok &= outputs_agree("DeviceTime s2j", s2j_DeviceTime(&device_time, formatted), floor_emit, peer_emit,
                            &device_time, 1, formatted, true);
        ok &= outputs_agree("WatermarkOSD s2j", s2j_array_WatermarkOSDParameter(&watermark, 1, formatted),
                            floor_emit, peer_emit, &watermark, 1, formatted, false);
        ok &= outputs_agree("VideoEncode64 s2j", s2j_array_VideoEncodeParameter(encoders, kN, formatted),
                            floor_emit, peer_emit, encoders, kN, formatted, false);
    }
    ok &= outputs_agree("VideoEncode1024 s2j", s2j_array_VideoEncodeParameter(encoders_1024, kThroughputN, 0),
                        floor_emit, peer_emit, encoders_1024, kThroughputN, false, false);
    encoders_1024_text = s2j_array_VideoEncodeParameter(encoders_1024, kThroughputN, 0);
    encoders_1024_bytes = encoders_1024_text != nullptr ? std::strlen(encoders_1024_text) : 0;
    // The read side works on the library's own compact texts.
    device_time_text = s2j_DeviceTime(&device_time, 0);
    watermark_text = s2j_array_WatermarkOSDParameter(&watermark, 1, 0);
    encoders_text = s2j_array_VideoEncodeParameter(encoders, kN, 0);
    device_time_tree = cJSON_Parse(device_time_text);
    watermark_tree = cJSON_Parse(watermark_text);
    encoders_tree = cJSON_Parse(encoders_text);

    // Four elements of a request: new schedules for tasks 5, 17, 33 and 60.
    CrontabParameter changes[4];
    const uint32_t keys[4] = {5, 17, 33, 60};
    for (int i = 0; i < 4; ++i) {
        changes[i] = tasks[keys[i] - 1];
        changes[i].Enable = 1;
        set(changes[i].Minute, std::to_string(7 * i));
        set(changes[i].Command, "/usr/bin/snapshot --channel " + std::to_string(i + 1));
    }
    update_text = s2j_array_CrontabParameter(changes, 4, 0);

    // Each read side must give the same records.
    DeviceTime dt_peer{};
    device_time_out = {};
    cJSON *t = cJSON_Parse(device_time_text);
    peer_read(&dt_peer, t);
    cJSON_Delete(t);
    ok &= j2s_DeviceTime(device_time_text, &device_time_out) == 0;
    ok &= same_records("DeviceTime j2s", &device_time_out, &dt_peer, 1) &&
          same_records("DeviceTime values", &device_time_out, &device_time, 1);

    uint32_t n = kN;
    ok &= j2s_array_VideoEncodeParameter(encoders_text, encoders_out, &n) == 0 && n == kN;
    ok &= same_records("VideoEncode64 j2s", encoders_out, encoders, kN);
    std::memset(encoders_out, 0, sizeof encoders_out);
    ok &= read_array(peer_read, encoders_out, kN, encoders_tree) == static_cast<int>(kN);
    ok &= same_records("VideoEncode64 peer", encoders_out, encoders, kN);
    n = kThroughputN;
    ok &= j2s_array_VideoEncodeParameter(encoders_1024_text, encoders_1024_out, &n) == 0 && n == kThroughputN;
    ok &= same_records("VideoEncode1024 j2s", encoders_1024_out, encoders_1024, kThroughputN);
    std::memset(encoders_1024_out, 0, sizeof encoders_1024_out);
    cJSON *t1024 = cJSON_Parse(encoders_1024_text);
    ok &= read_array(peer_read, encoders_1024_out, kThroughputN, t1024) == static_cast<int>(kThroughputN);
    cJSON_Delete(t1024);
    ok &= same_records("VideoEncode1024 peer", encoders_1024_out, encoders_1024, kThroughputN);

    n = 1;
    ok &= c2s_array_WatermarkOSDParameter(watermark_tree, watermark_out, &n) == 0 && n == 1;
    ok &= same_records("WatermarkOSD c2s", watermark_out, &watermark, 1);

    CrontabParameter peer_tasks[kN];
    std::memcpy(tasks_out, tasks, sizeof tasks);
    std::memcpy(peer_tasks, tasks, sizeof tasks);
    n = kN;
    ok &= j2s_array_update_CrontabParameter(update_text, tasks_out, &n) == 0 && n == 4;
    ok &= peer_update(update_text, peer_tasks, kN) == 4;
    // Bytes after a string's NUL may differ (strncpy pads, the library does
    // not): compare what the records say.
    ok &= agree("CrontabUpdate4of64", take(s2j_array_CrontabParameter(tasks_out, kN, 0)),
                take(s2j_array_CrontabParameter(peer_tasks, kN, 0)));

    ok &= s2f_array_NetworkLANParameter(lan_path, lans, kN) == 0;
    n = kN;
    ok &= f2s_array_NetworkLANParameter(lan_path, lans_out, &n) == 0 && n == kN;
    ok &= same_records("NetworkLAN64File", lans_out, lans, kN);
    char *lib_file = read_file(lan_path);
    ok &= agree("NetworkLAN64File save", take(lib_file), take(print(emit_array(peer_emit, lans, kN), true)));
    return ok;
}

void release() {
    for (char *text : {device_time_text, watermark_text, encoders_text, update_text, encoders_1024_text})
        std::free(text);
    cJSON_Delete(device_time_tree);
    cJSON_Delete(watermark_tree);
    cJSON_Delete(encoders_tree);
    std::remove(lan_path);
}

}  // namespace bench
