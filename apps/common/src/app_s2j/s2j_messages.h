// s2j_messages.h - every diagnostic text of the library, byte for byte.
// The code and the tests use these very constants.  A message is passed to
// the stream as the format itself; whether it ends in a newline is part of it.
#ifndef APP_S2J_MESSAGES_H
#define APP_S2J_MESSAGES_H

#define S2J_DIAG_HEADER "\033[1;31m<ERROR! %s:%d, %s>: "
#define S2J_DIAG_RESET "\033[0m"

#define S2J_MSG_STRUCT_PTR_EMPTY "struct_ptr is empty!\n"
#define S2J_MSG_NOT_OBJECT "the cJSON pointer is not an object!\n"
#define S2J_MSG_NOT_ARRAY "the cJSON pointer is not an array!\n"
#define S2J_MSG_EMITTER_FAILED "struct_to_json_%s failed!"  // no newline: the reset follows on the line
#define S2J_MSG_READER_FAILED "json_to_struct_%s failed!\n"
#define S2J_MSG_J2S_ARGS "json_str or struct_ptr is empty!\n"
#define S2J_MSG_J2S_LEN_ARGS "json_str or json_str_len or struct_ptr is empty!\n"
#define S2J_MSG_PARSE_FAILED "cJSON_Parse(%s) failed! reason: %s\n"        // single records
#define S2J_MSG_PARSE_FAILED_NO_NL "cJSON_Parse(%s) failed! reason: %s"    // arrays and updates
#define S2J_MSG_PARSE_LEN_FAILED "cJSON_ParseWithLength(%s, %zu) failed! reason: %s"
#define S2J_MSG_ARRAY_ARGS "struct_array or struct_array_size is empty!\n"
#define S2J_MSG_CREATE_ARRAY_FAILED "cJSON_CreateArray failed!\n"
#define S2J_MSG_SIZE_EMPTY "struct_array_size is empty!\n"
#define S2J_MSG_J2S_ARRAY_ARGS "json_str or struct_array_size is empty!\n"
#define S2J_MSG_J2S_ARRAY_LEN_ARGS "json_str or json_str_len or struct_array_size is empty!\n"
#define S2J_MSG_KEYWORD_MISSING "The keyword is not contained in an object of the json array!\n"
#define S2J_MSG_UPDATE_ARGS "json_str or struct_array or struct_array_size is empty!\n"
#define S2J_MSG_UPDATE_LEN_ARGS "json_str or json_str_len or struct_array or struct_array_size is empty!\n"
#define S2J_MSG_FINE_NAME_EMPTY "fine_name is empty!\n"

#endif  // APP_S2J_MESSAGES_H
