#include "platform/platform.h"

#include <cstring>

// Opening a session converts thousands of addresses and serial numbers, which snprintf would slow down.

namespace {

constexpr char upper_digits[] = "0123456789ABCDEF";
constexpr char lower_digits[] = "0123456789abcdef";

char* put_hex(char* out, unsigned char byte, const char* digits)
{
    out[0] = digits[byte >> 4];
    out[1] = digits[byte & 0xF];
    return out + 2;
}

char* put_hex(char* out, const unsigned char* bytes, int count, const char* digits)
{
    for (int i = 0; i < count; ++i) {
        out = put_hex(out, bytes[i], digits);
    }
    return out;
}

// Every byte in decimal, followed by a dot and padded with zeros.
struct DecimalTexts {
    char text[256][4];
};

constexpr DecimalTexts make_decimal_texts()
{
    DecimalTexts result{};
    for (int byte = 0; byte < 256; ++byte) {
        int at = 0;
        for (int divisor = 100; divisor > 0; divisor /= 10) {
            if (byte >= divisor || divisor == 1) {
                result.text[byte][at++] = static_cast<char>('0' + byte / divisor % 10);
            }
        }
        result.text[byte][at] = '.';
    }
    return result;
}

constexpr DecimalTexts decimal_texts = make_decimal_texts();

} // namespace

void convert_ip_bintostr(char* out, const unsigned char* value)
{
    for (int i = 0; i < 4; ++i) {
        const unsigned char byte = value[i];
        std::memcpy(out, decimal_texts.text[byte], sizeof decimal_texts.text[byte]);
        out += 2 + (byte > 9) + (byte > 99);
    }
    out[-1] = '\0';
}

void convert_mac_bintostr(char* out, const unsigned char* value)
{
    for (int i = 0; i < 6; ++i) {
        out = put_hex(out, value[i], upper_digits);
        *out++ = ':';
    }
    out[-1] = '\0';
}

void convert_snmpengineid_bintostr(char* out, const unsigned char* value)
{
    *put_hex(out, value, 13, lower_digits) = '\0';
}

void convert_sn_bintostr_pretty(char* out, const unsigned char* value)
{
    for (int i = 0; i < 4; ++i) {
        const unsigned char byte = value[i];
        *out++ = byte >= 0x20 && byte <= 0x7E ? static_cast<char>(byte) : '.';
    }
    *put_hex(out, value + 4, 4, upper_digits) = '\0';
}

void convert_sn_bintostr_dense(char* out, const unsigned char* value)
{
    *put_hex(out, value, 8, upper_digits) = '\0';
}

void convert_sn_bintostr_dashed(char* out, const unsigned char* value)
{
    out = put_hex(out, value, 4, upper_digits);
    *out++ = '-';
    *put_hex(out, value + 4, 4, upper_digits) = '\0';
}
