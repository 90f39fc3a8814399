/* A C99 caller of the installed library: includes only the public header,
   links with -lapp_s2j -lcjson, and exercises one call of each kind.
   Built twice: with the header included as <app_s2j.h>, and (with
   APP_S2J_INCLUDE_DIR_FORM defined) as <app_s2j/app_s2j.h>, the form that
   <cjson/cJSON.h> teaches; both reach the installed header. */
#ifdef APP_S2J_INCLUDE_DIR_FORM
#include <app_s2j/app_s2j.h>
#else
#include <app_s2j.h>
#endif
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int argc, char **argv) {
    CrontabParameter tasks[4];
    uint32_t count = 4;
    DeviceTime now;
    char *text;
    int rc;

    if (argc != 2) {
        fprintf(stderr, "usage: consumer DIR\n");
        return 2;
    }
    memset(tasks, 0, sizeof tasks);
    tasks[0].Index = 1;
    strcpy(tasks[0].Command, "/sbin/reboot");
    tasks[1].Index = 2;
    rc = j2s_array_update_CrontabParameter("[{\"Index\": 2, \"Enable\": 1, \"Command\": \"sync\"}]", tasks, &count);
    if (rc != 0 || count != 1 || tasks[1].Enable != 1 || strcmp(tasks[1].Command, "sync") != 0) return 1;

    {
        char path[4096];
        CrontabParameter back[4];
        uint32_t n = 4;
        memset(back, 0, sizeof back);
        snprintf(path, sizeof path, "%s/crontab.json", argv[1]);
        if (s2f_array_CrontabParameter(path, tasks, 2) != 0) return 1;
        if (f2s_array_CrontabParameter(path, back, &n) != 0 || n != 2) return 1;
        if (memcmp(back, tasks, 2 * sizeof tasks[0]) != 0) return 1;
    }

    memset(&now, 0, sizeof now);
    now.UTCTime = -1;
    now.Month = 4294967295u;
    text = s2j_DeviceTime(&now, 0);
    if (text == NULL) return 1;
    puts(text);
    rc = strstr(text, "\"UTCTime\":-1,") != NULL && strstr(text, "\"Month\":4294967295,") != NULL;
    free(text);
    if (!rc) return 1;

    {
        cJSON *item = cJSON_CreateInt(INT64_MIN);
        char *s = cJSON_PrintUnformatted(item);
        rc = cJSON_IsInt(item) && strcmp(s, "-9223372036854775808") == 0;
        free(s);
        cJSON_Delete(item);
        if (!rc) return 1;
    }
    puts("consumer ok");
    return 0;
}
