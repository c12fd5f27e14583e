#ifndef TOOL_JSON_JSON_H
#define TOOL_JSON_JSON_H

/// @file
/// Configurations as JSON documents. Keys are the names of the fields, arrays of records are objects keyed by index,
/// and absent fields are zero: {"pon": {"ont": {"70": {"exist": true, "serial": "ABCD01020304"}}}} is a document.
///
/// - Switches are true and false, enumerations the registry's words, ethertypes and vendor ids "0x88A8". A number is
///   accepted, too, and is the only form of any other value.
/// - Addresses, serial numbers and engine ids are texts: "10.0.0.1", "2001:db8::1", "AA:BB:CC:DD:EE:FF",
///   "ABCD01020304", hexadecimal digits.
/// - A text that has bytes after its terminator, or no terminator, or is not UTF-8, is {"hex": "414200FF"}: its bytes
/// up
///   to the last one that is not zero.
/// - Arrays of numbers are lists from element 0 on, or objects keyed by index.
/// - A list of tunnel VLANs is filled up with -1.
/// - The VLANs that source guard ignores are "100,200-210", a list of such numbers and ranges, or an object that gives
///   them their flags: {"100": true, "200-210": 2}.

#include "gcfg/gcfg.h"
#include "tool/errors.h"

#include <string>
#include <string_view>

namespace pondiff::tool {

/// Fills the whole record from the document; `file` is its name in messages. Throws InputError, which leaves the record
/// partly filled.
void read_json(std::string_view document, const std::string& file, GCfg& record);

/// The document of the record: `read_json` restores the same bytes from it, whatever they are. Without `full`, fields
/// that are zero are left out.
std::string write_json(const GCfg& record, bool full);

} // namespace pondiff::tool

#endif
