/* schedule_request: how a C service of the appliance answers a request about
   its scheduled tasks with libapp_s2j.

   usage: schedule_request CONFIG_FILE [REQUEST]

   CONFIG_FILE holds the task list, a JSON array of CrontabParameter records
   (see examples/CrontabParameter.json).  REQUEST (the argument, or standard
   input when it is absent or "-") is a JSON array that names tasks by their
   Index and carries only the fields to change, for example
       [{"Index": 3, "Enable": 1, "Hour": "5"}]
   An empty request only reads.  The program applies the request to the list,
   saves the list when something changed, and answers on standard output:
       {"Status":0,"Updated":1,"Tasks":[...]}
   Exit status: 0 answered, 1 the file or the request could not be used,
   2 wrong usage.

   C99; includes only the library's public header and links with
   -lapp_s2j -lcjson (pkg-config app_s2j, or find_package(app_s2j)). */
#include <app_s2j.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define MAX_TASKS 32u
#define MAX_REQUEST 65536u

static size_t read_request(FILE *in, char *buf, size_t cap) {
    size_t n = fread(buf, 1, cap - 1, in);
    buf[n] = '\0';
    return n;
}

static int only_space(const char *s) {
    for (; *s != '\0'; ++s)
        if (*s != ' ' && *s != '\t' && *s != '\n' && *s != '\r') return 0;
    return 1;
}

/* {"Status":status,"Updated":updated,"Tasks":[...]} on stdout; 0 when printed. */
static int answer(int status, uint32_t updated, const CrontabParameter *tasks, uint32_t count) {
    cJSON *reply = cJSON_CreateObject();
    cJSON *list = cJSON_CreateArray();
    char *text;
    uint32_t i;

    if (reply == NULL || list == NULL) {
        cJSON_Delete(reply);
        cJSON_Delete(list);
        return -1;
    }
    cJSON_AddIntToObject(reply, "Status", status);
    cJSON_AddIntToObject(reply, "Updated", updated);
    for (i = 0; i < count; ++i) {
        cJSON *task = struct_to_json_CrontabParameter(&tasks[i]);
        if (task != NULL) cJSON_AddItemToArray(list, task);
    }
    cJSON_AddItemToObject(reply, "Tasks", list);
    text = cJSON_PrintUnformatted(reply);
    cJSON_Delete(reply);
    if (text == NULL) return -1;
    puts(text);
    free(text);
    return 0;
}

int main(int argc, char **argv) {
    static CrontabParameter tasks[MAX_TASKS];
    static char request[MAX_REQUEST];
    const char *config;
    uint32_t count = MAX_TASKS;
    uint32_t updated = 0;
    int rc;

    if (argc < 2 || argc > 3) {
        fprintf(stderr, "usage: schedule_request CONFIG_FILE [REQUEST]\n");
        return 2;
    }
    config = argv[1];

    /* The list as the device keeps it. */
    rc = f2s_array_CrontabParameter(config, tasks, &count);
    if (rc != 0) {
        fprintf(stderr, "schedule_request: cannot load %s (status %d)\n", config, rc);
        return 1;
    }

    if (argc == 3 && strcmp(argv[2], "-") != 0) {
        size_t len = strlen(argv[2]);
        if (len >= sizeof request) len = sizeof request - 1;
        memcpy(request, argv[2], len);
        request[len] = '\0';
    } else {
        read_request(stdin, request, sizeof request);
    }

    if (!only_space(request)) {
        /* Only the loaded tasks take part: the size in is the list's length,
           the size out the number of request elements applied. */
        updated = count;
        rc = j2s_array_update_CrontabParameter_with_len(request, strlen(request), tasks, &updated);
        if (rc != 0) {
            answer(rc, 0, tasks, count);
            return 1;
        }
        if (updated > 0) {
            rc = s2f_array_CrontabParameter(config, tasks, count);
            if (rc != 0) {
                answer(rc, updated, tasks, count);
                return 1;
            }
        }
    }
    return answer(0, updated, tasks, count) == 0 ? 0 : 1;
}
