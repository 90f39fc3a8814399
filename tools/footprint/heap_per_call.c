/* heap_per_call: heap used by one call of the library, for the footprint
   report (docs/embedded.md).  This program defines malloc, calloc, realloc
   and free itself, forwarding to the C library's own allocator; the dynamic
   linker binds every caller to them, libapp_s2j and libcjson included, so
   each call below is measured with all it allocates:
     allocs  number of allocations made during the call
     bytes   bytes requested during the call
     peak    most bytes live at one time during the call, above what was live
             before it (what the call needs on top of the caller's data)
   Each workload is run once to warm up, then measured.
   usage: heap_per_call EXAMPLES_DIR   (the repository's examples/) */
#include <app_s2j.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

extern void *__libc_malloc(size_t);
extern void *__libc_calloc(size_t, size_t);
extern void *__libc_realloc(void *, size_t);
extern void __libc_free(void *);
extern size_t malloc_usable_size(void *);

static size_t live, peak, requested, count;

static void note_alloc(void *p, size_t n) {
    if (p == NULL) return;
    ++count;
    requested += n;
    live += malloc_usable_size(p);
    if (live > peak) peak = live;
}

void *malloc(size_t n) {
    void *p = __libc_malloc(n);
    note_alloc(p, n);
    return p;
}
void *calloc(size_t m, size_t n) {
    void *p = __libc_calloc(m, n);
    note_alloc(p, m * n);
    return p;
}
void *realloc(void *old, size_t n) {
    size_t before = old != NULL ? malloc_usable_size(old) : 0;
    void *p = __libc_realloc(old, n);
    if (p != NULL) {
        live -= before;
        note_alloc(p, n);
    }
    return p;
}
void free(void *p) {
    if (p != NULL) live -= malloc_usable_size(p);
    __libc_free(p);
}

static char dir[4096];
static char text_crontab[65536], text_device[65536], text_encode[65536];
static CrontabParameter tasks[32];
static DeviceInfo device;
static VideoEncodeParameter streams[32];
static uint32_t n_tasks, n_streams;
static char *out;

static void load_text(const char *name, char *buf, size_t cap) {
    char path[8192];
    FILE *f;
    size_t n;
    snprintf(path, sizeof path, "%s/%s", dir, name);
    f = fopen(path, "r");
    if (f == NULL) { perror(path); exit(1); }
    n = fread(buf, 1, cap - 1, f);
    buf[n] = '\0';
    fclose(f);
}

static int w_j2s_device(void) { return j2s_DeviceInfo(text_device, &device); }
static int w_s2j_device(void) { out = s2j_DeviceInfo(&device, 0); return out == NULL; }
static int w_j2s_array_crontab(void) { n_tasks = 32; return j2s_array_CrontabParameter(text_crontab, tasks, &n_tasks); }
static int w_s2j_array_crontab(void) { out = s2j_array_CrontabParameter(tasks, n_tasks, 1); return out == NULL; }
static int w_update_crontab(void) {
    uint32_t n = n_tasks;
    return j2s_array_update_CrontabParameter("[{\"Index\":3,\"Enable\":1,\"Hour\":\"5\"}]", tasks, &n);
}
static int w_j2s_array_encode(void) { n_streams = 32; return j2s_array_VideoEncodeParameter(text_encode, streams, &n_streams); }
static int w_s2j_array_encode(void) { out = s2j_array_VideoEncodeParameter(streams, n_streams, 0); return out == NULL; }
static int w_f2s_array_crontab(void) {
    char path[8192];
    uint32_t n = 32;
    snprintf(path, sizeof path, "%s/CrontabParameter.json", dir);
    return f2s_array_CrontabParameter(path, tasks, &n);
}

struct workload { const char *name; int (*run)(void); };
static const struct workload workloads[] = {
    {"j2s_DeviceInfo (examples/DeviceInfo.json)", w_j2s_device},
    {"s2j_DeviceInfo, compact", w_s2j_device},
    {"j2s_array_CrontabParameter (3 tasks)", w_j2s_array_crontab},
    {"s2j_array_CrontabParameter, formatted", w_s2j_array_crontab},
    {"j2s_array_update_CrontabParameter (1 element)", w_update_crontab},
    {"f2s_array_CrontabParameter (file)", w_f2s_array_crontab},
    {"j2s_array_VideoEncodeParameter", w_j2s_array_encode},
    {"s2j_array_VideoEncodeParameter, compact", w_s2j_array_encode},
};

int main(int argc, char **argv) {
    size_t i;
    if (argc != 2) { fprintf(stderr, "usage: heap_per_call EXAMPLES_DIR\n"); return 2; }
    snprintf(dir, sizeof dir, "%s", argv[1]);
    load_text("CrontabParameter.json", text_crontab, sizeof text_crontab);
    load_text("DeviceInfo.json", text_device, sizeof text_device);
    load_text("VideoEncodeParameter.json", text_encode, sizeof text_encode);
    printf("| call | allocations | bytes requested | peak bytes live |\n|---|---:|---:|---:|\n");
    for (i = 0; i < sizeof workloads / sizeof workloads[0]; ++i) {
        size_t base;
        int rc;
        rc = workloads[i].run();       /* warm-up */
        free(out);
        out = NULL;
        base = live;
        peak = live;
        requested = count = 0;
        rc |= workloads[i].run();
        if (rc != 0) { fprintf(stderr, "%s failed\n", workloads[i].name); return 1; }
        printf("| %s | %zu | %zu | %zu |\n", workloads[i].name, count, requested, peak - base);
        free(out);
        out = NULL;
    }
    return 0;
}
