#include "tool/describe/records.h"
#include "tool/json/forms.h"
#include "tool/json/json.h"
#include "tool/json/values.h"

#include <cstring>

namespace pondiff::tool {

namespace {

bool is_zero(const unsigned char* at, std::size_t size)
{
    return at[0] == 0 && std::memcmp(at, at + 1, size - 1) == 0;
}

class Writer {
  public:
    explicit Writer(bool full) : full_(full)
    {
        // Enough for a full configuration, so that the text is not moved while it grows.
        out_.reserve(full ? std::size_t{16} << 20 : 4096);
    }

    std::string document(const Record& record, const unsigned char* at)
    {
        if (full_ || !is_zero(at, record.size)) {
            write_record(record, at);
        } else {
            out_ += "{}";
        }
        out_ += '\n';
        return std::move(out_);
    }

  private:
    /// An object that is being written, on one line or with a line for each member.
    class Object {
      public:
        Object(Writer& writer, bool on_a_line) : writer_(writer), on_a_line_(on_a_line)
        {
            writer_.out_ += '{';
            ++writer_.depth_;
        }

        void key(std::string_view name)
        {
            separate();
            writer_.out_.append(name);
            writer_.out_ += "\": ";
        }

        void key(std::size_t index)
        {
            separate();
            append_number(writer_.out_, static_cast<std::int64_t>(index));
            writer_.out_ += "\": ";
        }

        void end()
        {
            --writer_.depth_;
            if (!on_a_line_) {
                writer_.start_line();
            }
            writer_.out_ += '}';
        }

      private:
        void separate()
        {
            if (!on_a_line_) {
                if (!first_) {
                    writer_.out_ += ',';
                }
                writer_.start_line();
            } else if (!first_) {
                writer_.out_ += ", ";
            }
            first_ = false;
            writer_.out_ += '"';
        }

        Writer& writer_;
        bool on_a_line_;
        bool first_ = true;
    };

    void start_line()
    {
        out_ += '\n';
        out_.append(2 * depth_, ' ');
    }

    bool is_left_out(const unsigned char* at, std::size_t size) const { return !full_ && is_zero(at, size); }

    void write_record(const Record& record, const unsigned char* at)
    {
        Object object(*this, record.brief);
        for (const Field& field : record) {
            if (!is_left_out(at + field.offset, field.size)) {
                object.key(field.name);
                write_field(field, at + field.offset);
            }
        }
        object.end();
    }

    void write_field(const Field& field, const unsigned char* at)
    {
        if (field.layout == Layout::flag_set) {
            write_flags(field, at);
        } else if (field.form == Form::record && field.array) {
            write_elements(field, at);
        } else if (field.form == Form::record) {
            write_record(*field.record, at);
        } else if (field.array) {
            write_numbers(field, at);
        } else {
            append_value(out_, field, at);
        }
    }

    void write_elements(const Field& field, const unsigned char* at)
    {
        Object object(*this, false);
        for (std::size_t i = 0; i < field.count; ++i) {
            const unsigned char* const element = at + i * field.width;
            if (!is_left_out(element, field.width)) {
                object.key(i);
                write_record(*field.record, element);
            }
        }
        object.end();
    }

    void write_numbers(const Field& field, const unsigned char* at)
    {
        if (field.layout == Layout::ended_list) {
            std::size_t length = field.count;
            while (length > 0 && get_number(field, at + (length - 1) * field.width) == -1) {
                --length;
            }
            write_list(field, at, length);
            return;
        }
        if (full_) {
            write_list(field, at, field.count);
            return;
        }
        std::size_t length = 0;
        bool gaps = false;
        for (std::size_t i = 0; i < field.count; ++i) {
            if (!is_zero(at + i * field.width, field.width)) {
                gaps = gaps || i > length;
                length = i + 1;
            }
        }
        const std::size_t start = out_.size();
        write_list(field, at, length);
        if (gaps) {
            const std::string list(out_, start);
            out_.resize(start);
            write_indexed(field, at);
            if (list.size() <= out_.size() - start) {
                out_.replace(start, out_.npos, list);
            }
        }
    }

    void write_list(const Field& field, const unsigned char* at, std::size_t length)
    {
        out_ += '[';
        for (std::size_t i = 0; i < length; ++i) {
            if (i > 0) {
                out_ += ", ";
            }
            append_value(out_, field, at + i * field.width);
        }
        out_ += ']';
    }

    void write_indexed(const Field& field, const unsigned char* at)
    {
        Object object(*this, true);
        for (std::size_t i = 0; i < field.count; ++i) {
            const unsigned char* const element = at + i * field.width;
            if (!is_zero(element, field.width)) {
                object.key(i);
                append_value(out_, field, element);
            }
        }
        object.end();
    }

    /// Calls `visit(slots, flag)` for each run of slots with the same flag; `slots` is "100" or "200-210" and `flag`
    /// the place of the first one's.
    template <class Visit>
    void for_each_run(const Field& field, const unsigned char* at, Visit visit)
    {
        std::string slots;
        for (std::size_t first = 0, next = 0; first < field.count; first = next) {
            const unsigned char* const flag = at + first * field.width;
            for (next = first + 1; next < field.count; ++next) {
                if (std::memcmp(flag, at + next * field.width, field.width) != 0) {
                    break;
                }
            }
            if (!is_zero(flag, field.width)) {
                slots.clear();
                append_number(slots, static_cast<std::int64_t>(first));
                if (next - first > 1) {
                    slots += '-';
                    append_number(slots, static_cast<std::int64_t>(next - 1));
                }
                visit(slots, flag);
            }
        }
    }

    /// "100,200-210" when the flags are 0 and 1, else an object that gives each run of slots its flag.
    void write_flags(const Field& field, const unsigned char* at)
    {
        const Field& flag = field.record->fields[0];
        std::string set;
        bool plain = true;
        for_each_run(field, at, [&](const std::string& slots, const unsigned char* value) {
            plain = plain && get_number(flag, value) == 1;
            set += set.empty() ? "" : ",";
            set += slots;
        });
        if (plain) {
            append_quoted(out_, set);
            return;
        }
        Object object(*this, false);
        for_each_run(field, at, [&](const std::string& slots, const unsigned char* value) {
            object.key(slots);
            append_value(out_, flag, value);
        });
        object.end();
    }

    std::string out_;
    std::size_t depth_ = 0;
    bool full_;
};

} // namespace

std::string write_json(const GCfg& record, bool full)
{
    return Writer(full).document(gcfg_record, reinterpret_cast<const unsigned char*>(&record));
}

} // namespace pondiff::tool
