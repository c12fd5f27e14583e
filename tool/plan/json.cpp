#include "tool/plan/json.h"

#include <nlohmann/json.hpp>

namespace pondiff::tool {

namespace {

using Json = nlohmann::ordered_json;

const char* name_of(Account::Verdict verdict)
{
    switch (verdict) {
    case Account::Verdict::nothing:
        return "nothing";
    case Account::Verdict::complete:
        return "complete";
    case Account::Verdict::incomplete:
        break;
    }
    return "incomplete";
}

class Writer {
  public:
    Writer(const Plan& plan, bool secrets) : plan_(plan), account_(plan.account), secrets_(secrets) {}

    std::string write() const
    {
        Json json;
        json["format"] = 1;
        json["verdict"] = name_of(account_.verdict());
        json["summary"] = summary();
        json["objects"] = Json::array();
        json["left_over"] = Json::array();
        for (const ObjectAccount& object : account_.objects()) {
            json["objects"].push_back(of(object));
            if (object.left_over) {
                json["left_over"].push_back({{"name", object.name}, {"path", object.path}});
            }
        }
        json["risks"] = Json::array();
        for (const Risk& risk : plan_.risks) {
            json["risks"].push_back({{"kind", tool::name_of(risk.kind)}, {"text", risk.text}, {"lines", risk.lines}});
        }
        json["refused"] = Json::array();
        for (const Replay::Refusal& refusal : account_.replay().refusals()) {
            json["refused"].push_back({{"line", refusal.line}, {"place", refusal.place}, {"reason", refusal.reason}});
        }
        json["script"] = Json::array();
        for (std::uint32_t line = 1; line <= account_.replay().lines().size(); ++line) {
            json["script"].push_back(secrets_ ? std::string(account_.replay().lines()[line - 1])
                                              : account_.replay().masked(line));
        }
        // JSON is UTF-8: bytes that are not are replaced.
        return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
    }

  private:
    Json summary() const
    {
        Json json{{"lines", account_.replay().lines().size()}, {"added", 0}, {"changed", 0}, {"removed", 0}};
        for (const ObjectAccount& object : account_.objects()) {
            Json& count = json[tool::name_of(object.change)];
            count = count.get<std::size_t>() + 1;
        }
        for (std::size_t i = 0; i < number_of_fates; ++i) {
            const auto fate = static_cast<Fate>(i);
            json[tool::name_of(fate)] = account_.count(fate);
        }
        json["risks"] = plan_.risks.size();
        return json;
    }

    Json of(const ObjectAccount& object) const
    {
        Json json{{"name", object.name}, {"path", object.path}, {"change", tool::name_of(object.change)}};
        if (!object.old_name.empty()) {
            json["old_name"] = object.old_name;
        }
        if (!object.detail.empty()) {
            json["detail"] = object.detail;
        }
        json["fields"] = Json::array();
        for (const Item& item : object.items) {
            json["fields"].push_back(of(item));
        }
        return json;
    }

    Json of(const Item& item) const
    {
        Json json{{"path", item.path},           {"running", value(item, running)},   {"wanted", value(item, wanted)},
                  {"after", value(item, after)}, {"class", tool::name_of(item.fate)}, {"lines", item.lines}};
        if (!item.reason.empty()) {
            json["reason"] = item.reason;
        }
        if (item.fate != Fate::carried) {
            json["remedy"] = plan_.remedy(item);
        }
        return json;
    }

    /// As a document has it; null where the object is not there, and for a reference to none.
    Json value(const Item& item, At which) const
    {
        if (!item.there[which]) {
            return nullptr;
        }
        if (item.field->form == Form::secret && !secrets_) {
            return "***";
        }
        const Json json = Json::parse(account_.value(item, which), nullptr, false);
        return json.is_discarded() ? Json(nullptr) : json;
    }

    const Plan& plan_;
    const Account& account_;
    bool secrets_;
};

} // namespace

std::string plan_json(const Plan& plan, bool secrets)
{
    return Writer(plan, secrets).write();
}

} // namespace pondiff::tool
