/// interface-generator JSON: prints radio_apis.json as C++: constant tables, and a call for each request.
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

using Json = nlohmann::ordered_json;

namespace {

std::string quoted(const std::string& text)
{
    return Json(text).dump();
}

/// `int32` is Int32.
std::string typeOf(const std::string& type)
{
    const bool isNumber =
        type == "bool" || type == "char" || type.starts_with("int") || type.starts_with("uint");
    std::string name = isNumber ? type : "record";
    name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
    return "Type::" + name;
}

bool isRecord(const Json& described, const char* key)
{
    return typeOf(described[key]) == "Type::Record";
}

/// Values in braces.
std::string braced(const std::vector<std::string>& values)
{
    std::ostringstream text;
    const char* separator = "{";
    for (const std::string& value : values) {
        text << separator << value;
        separator = ", ";
    }
    text << (values.empty() ? "{}" : "}");
    return text.str();
}

template <typename Write>
std::string listed(const Json& items, Write write)
{
    std::vector<std::string> values;
    std::transform(items.begin(), items.end(), std::back_inserter(values), write);
    return braced(values);
}

std::string flag(const Json& described, const char* name)
{
    return described.value(name, false) ? "true" : "false";
}

class Generator {
public:
    explicit Generator(const Json& interface) : mInterface(interface) {}

    std::string text()
    {
        mOut << "#include \"interface/arguments.h\"\n\n#include <cstddef>\n\nnamespace interface "
                "{\nnamespace {\n\n";
        domains();
        records();
        events();
        requests();
        results();
        mOut << "} // namespace\n\n";
        for (const auto& [type, name] : {std::pair("Domain", "domains"),
                                         {"Request", "requests"},
                                         {"Event", "events"},
                                         {"Record", "records"},
                                         {"Value", "results"}}) {
            mOut << "std::span<const " << type << "> " << name << "()\n{\n    return " << name
                 << "Table;\n}\n\n";
        }
        mOut << "} // namespace interface\n";
        return mOut.str();
    }

private:
    /// A constant table; nothing stands for one without rows.
    template <typename Write>
    std::string table(const std::string& type, const std::string& name, const Json& rows, Write write)
    {
        if (rows.empty()) {
            return "{}";
        }
        mOut << "constexpr " << type << " " << name << "[] = " << listed(rows, write) << ";\n";
        return name;
    }

    std::string values(const std::string& name, const Json& rows)
    {
        return table("Value", name, rows, [](const Json& value) {
            return braced({quoted(value["name"]), value["value"].dump()});
        });
    }

    std::string meaning(const std::string& owner, const Json& described)
    {
        const std::string name = described["name"];
        const std::string valuesName =
            values("values_" + owner + "_" + name, described.value("values", Json::array()));
        std::string range = "{}";
        if (described.contains("range")) {
            const Json& bounds = described["range"];
            range = "Range" + braced({bounds[0].dump(), bounds[1].dump(),
                                      std::to_string(described.value("multipleOf", 1))});
        }
        return braced({quoted(name), quoted(described["text"]), quoted(described.value("unit", "")),
                       valuesName, range, flag(described, "signed"), flag(described, "failure"),
                       flag(described, "private"), flag(described, "unused")});
    }

    void domains()
    {
        table("Domain", "domainsTable", mInterface["domains"], [](const Json& domain) {
            return braced({quoted(domain["name"]), quoted(domain["title"])});
        });
    }

    std::string place(const char* array, const char* table, const std::string& name) const
    {
        size_t index = 0;
        for (const Json& row : mInterface[table]) {
            if (row["name"] == name) {
                return "&" + std::string(array) + "[" + std::to_string(index) + "]";
            }
            ++index;
        }
        throw std::runtime_error("there is no " + name + " among the " + table);
    }

    std::string record(const std::string& name) const { return place("recordsTable", "records", name); }

    std::string recordOf(const Json& described, const char* key) const
    {
        return isRecord(described, key) ? record(described[key]) : "nullptr";
    }

    void records()
    {
        const Json& records = mInterface["records"];
        mOut << "extern const Record recordsTable[" << records.size() << "];\n";
        for (const Json& record : records) {
            const std::string name = record["name"];
            const Json& members = record["members"];
            mOut << "static_assert(sizeof(" << name << ") == " << record["size"] << ");\n";
            std::string rows;
            for (const Json& member : members) {
                const std::string field = member.value("constant", member["name"].get<std::string>());
                mOut << "static_assert(offsetof(" << name << ", " << field << ") == " << member["offset"]
                     << ");\n";
                const Json lengths = member.value("array", Json::array());
                rows +=
                    braced({meaning(name, member), typeOf(member["type"]), recordOf(member, "type"),
                            member["offset"].dump(), listed(lengths, [](const Json& n) { return n.dump(); }),
                            countedBy(name, members, member), member.contains("counts") ? "true" : "false"}) +
                    ",\n";
            }
            mOut << "extern const Member members_" << name << "[" << members.size() << "];\n"
                 << "constexpr Member members_" << name << "[] = {\n"
                 << rows << "};\n";
        }
        mOut << "constexpr Record recordsTable[] = {\n";
        for (const Json& record : records) {
            const std::string name = record["name"];
            mOut << braced({quoted(name), quoted(record["text"]), record["size"].dump(), "members_" + name})
                 << ",\n";
        }
        mOut << "};\n\n";
    }

    static std::string countedBy(const std::string& record, const Json& members, const Json& member)
    {
        for (size_t i = 0; member.contains("countedBy") && i < members.size(); ++i) {
            if (members[i]["name"] == member["countedBy"]) {
                return "&members_" + record + "[" + std::to_string(i) + "]";
            }
        }
        return "nullptr";
    }

    void events()
    {
        table("Event", "eventsTable", mInterface["events"], [&](const Json& event) {
            return braced(
                {quoted(event["name"]), event["constant"], quoted(event["text"]), record(event["record"])});
        });
        mOut << '\n';
    }

    static std::string form(const Json& argument)
    {
        std::string form = argument["form"];
        form.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(form.front())));
        return "Form::" + form;
    }

    /// What a parameter of the function gets: the value of an argument, or how many elements one has.
    static std::string passed(const Json& parameter, const std::vector<std::string>& names)
    {
        const bool counts = parameter.contains("counts");
        const std::string name = parameter[counts ? "counts" : "name"];
        const auto place = std::to_string(std::find(names.begin(), names.end(), name) - names.begin());
        if (counts) {
            return "in.count<" + parameter["type"].get<std::string>() + ">(" + place + ")";
        }
        const std::string form = parameter["form"];
        std::string type = parameter[form.starts_with("record") ? "of" : "type"];
        if (form == "list") {
            type.resize(type.find_last_not_of(" *") + 1);
        }
        return "in." + form + (form == "text" ? "" : "<" + type + ">") + "(" + place + ")";
    }

    void requests()
    {
        std::string rows;
        for (const Json& function : mInterface["functions"]) {
            if (!function.contains("request")) {
                continue;
            }
            const std::string name = function["name"];
            std::vector<std::string> names;
            std::string arguments;
            for (const Json& argument : function["arguments"]) {
                if (argument.contains("form") && !argument.contains("counts")) {
                    names.push_back(argument["name"]);
                    arguments += braced({meaning(name, argument), form(argument), typeOf(argument["of"]),
                                         recordOf(argument, "of")}) +
                                 ",\n";
                }
            }
            std::string values;
            for (const Json& parameter : function["arguments"]) {
                values += parameter.contains("form") ? passed(parameter, names) + ", " : "";
            }
            if (!arguments.empty()) {
                mOut << "constexpr Argument arguments_" << name << "[] = {\n" << arguments << "};\n";
            }
            mOut << "int call_" << name
                 << "([[maybe_unused]] Arguments& in, void* user, RadioRequestCallback cb)\n{\n"
                 << "    return " << name << "(" << values << "user, cb);\n}\n";
            rows += braced({quoted(function["request"]), quoted(name),
                            place("domainsTable", "domains", function["domain"]), quoted(function["text"]),
                            quoted(function.value("details", "")), quoted(function.value("returns", "")),
                            arguments.empty() ? "{}" : "arguments_" + name,
                            function.contains("answer") ? record(function["answer"]["record"]) : "nullptr",
                            function.value("unsupported", false) ? "false" : "true", "call_" + name}) +
                    ",\n";
        }
        mOut << "constexpr Request requestsTable[] = {\n" << rows << "};\n\n";
    }

    void results()
    {
        for (const Json& enumeration : mInterface["enumerations"]) {
            if (enumeration["name"] == "RADIO_APIS_RESULT") {
                values("resultsTable", enumeration["values"]);
            }
        }
    }

    const Json& mInterface;
    std::ostringstream mOut;
};

} // namespace

int main(int argc, char** argv)
{
    std::ifstream file(argc == 2 ? argv[1] : "");
    if (!file) {
        std::cerr << "Usage: interface-generator JSON\n";
        return 2;
    }
    try {
        std::cout << Generator(Json::parse(file)).text();
        return std::cout.flush() ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "interface-generator: " << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
}
