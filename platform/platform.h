/*
 * The library that the device software puts beside pondiff: the words of enumerated values and the text forms of
 * binary values. pondiff calls these seven functions by name; whichever library of them is loaded first serves it.
 *
 * Nothing here allocates, fails or keeps state; every function may be called from any thread.
 */
#ifndef PONDIFF_PLATFORM_H
#define PONDIFF_PLATFORM_H

#if defined(__GNUC__)
#define GPON_PLATFORM_API __attribute__((visibility("default")))
#else
#define GPON_PLATFORM_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/*
 * The CLI word of `value` in the enumeration `type`, the name of the record's type followed by "_enum" ("GBool_enum").
 * Only the low 16 bits of `value` count. Never null: an unknown type, a null `type` and a value without a word give
 * "unknown", which is the word of no value. The word is constant, lives as long as the library is loaded and is never
 * freed.
 */
GPON_PLATFORM_API const char* gpon_enum_find_name_by_type(const char* type, int value);

/*
 * The converters write the text of `value` and its terminator to `out`. Both belong to the caller and must not overlap;
 * `out` has at least the size stated, of which the bytes behind the terminator may be zeroed.
 */

/* IPv4 address, 4 bytes, most significant first: "10.0.0.1". `out`: 16 bytes. */
GPON_PLATFORM_API void convert_ip_bintostr(char* out, const unsigned char* value);

/* MAC address, 6 bytes: "AA:BB:CC:DD:EE:FF". `out`: 25 bytes. */
GPON_PLATFORM_API void convert_mac_bintostr(char* out, const unsigned char* value);

/* SNMP engine identifier, 13 bytes, as 26 lower-case hexadecimal digits. `out`: 29 bytes. */
GPON_PLATFORM_API void convert_snmpengineid_bintostr(char* out, const unsigned char* value);

/*
 * ONT serial number, 8 bytes: four of the vendor and four of the unit. Each layout needs 24 bytes in `out`.
 *
 * pretty: the vendor as characters, '.' for each that is not printable ASCII, then the unit in hexadecimal:
 *         "ABCD01020304"
 * dense:  all in hexadecimal: "4142434401020304"
 * dashed: vendor and unit in hexadecimal: "41424344-01020304"
 */
GPON_PLATFORM_API void convert_sn_bintostr_pretty(char* out, const unsigned char* value);
GPON_PLATFORM_API void convert_sn_bintostr_dense(char* out, const unsigned char* value);
GPON_PLATFORM_API void convert_sn_bintostr_dashed(char* out, const unsigned char* value);

#ifdef __cplusplus
}
#endif

#endif
