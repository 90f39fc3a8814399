// app_s2j.cpp - instantiation list of the text and tree families.
// One expansion per line (the line is what its diagnostics print), blank
// lines between types; nothing else belongs below the guard.
#include "s2j_families.h"
static_assert(__LINE__ == 5, "the instantiation list must begin on line 6");
S2J_DEF_S2J(CrontabCapabilitySet)
S2J_DEF_C2S(CrontabCapabilitySet)
S2J_DEF_J2S(CrontabCapabilitySet)

S2J_DEF_S2J_ARRAY(CrontabParameter)
S2J_DEF_C2S_ARRAY(CrontabParameter)
S2J_DEF_C2S_ARRAY_UPDATE(CrontabParameter)
S2J_DEF_J2S_ARRAY(CrontabParameter)
S2J_DEF_J2S_ARRAY_UPDATE(CrontabParameter)

S2J_DEF_S2J(DeviceTime)
S2J_DEF_C2S(DeviceTime)
S2J_DEF_J2S(DeviceTime)

S2J_DEF_S2J(DeviceCapabilitySet)
S2J_DEF_C2S(DeviceCapabilitySet)
S2J_DEF_J2S(DeviceCapabilitySet)

S2J_DEF_S2J(DeviceInfo)
S2J_DEF_C2S(DeviceInfo)
S2J_DEF_J2S(DeviceInfo)

S2J_DEF_S2J_ARRAY(TimeZone)
S2J_DEF_C2S_ARRAY(TimeZone)
S2J_DEF_J2S_ARRAY(TimeZone)

S2J_DEF_S2J(TimeZoneParameter)
S2J_DEF_C2S(TimeZoneParameter)
S2J_DEF_J2S(TimeZoneParameter)

S2J_DEF_S2J(AdvancedParameter)
S2J_DEF_C2S(AdvancedParameter)
S2J_DEF_J2S(AdvancedParameter)

S2J_DEF_S2J_ARRAY(NTPServer)
S2J_DEF_C2S_ARRAY(NTPServer)
S2J_DEF_J2S_ARRAY(NTPServer)

S2J_DEF_S2J(NTPParameter)
S2J_DEF_C2S(NTPParameter)
S2J_DEF_J2S(NTPParameter)
