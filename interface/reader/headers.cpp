#include "headers.h"

#include <clang-c/Index.h>
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

namespace reader {

namespace {

namespace fs = std::filesystem;

std::string taken(CXString string)
{
    const char* text = clang_getCString(string);
    std::string out = text != nullptr ? text : "";
    clang_disposeString(string);
    return out;
}

std::string nameOf(CXCursor cursor)
{
    return taken(clang_getCursorSpelling(cursor));
}

std::string spelled(CXType type)
{
    return taken(clang_getTypeSpelling(type));
}

void forEachChild(CXCursor parent, std::function<void(CXCursor)> visit)
{
    clang_visitChildren(
        parent,
        [](CXCursor child, CXCursor, CXClientData data) {
            (*static_cast<std::function<void(CXCursor)>*>(data))(child);
            return CXChildVisit_Continue;
        },
        &visit);
}

void forEachField(CXType record, std::function<void(CXCursor)> visit)
{
    clang_Type_visitFields(
        record,
        [](CXCursor field, CXClientData data) {
            (*static_cast<std::function<void(CXCursor)>*>(data))(field);
            return CXVisit_Continue;
        },
        &visit);
}

std::string fileOf(CXCursor cursor)
{
    CXFile file = nullptr;
    clang_getExpansionLocation(clang_getCursorLocation(cursor), &file, nullptr, nullptr, nullptr);
    return file != nullptr ? taken(clang_getFileName(file)) : "";
}

std::string placeOf(CXCursor cursor)
{
    unsigned line = 0;
    clang_getExpansionLocation(clang_getCursorLocation(cursor), nullptr, &line, nullptr, nullptr);
    return fmt::format("{}:{}: {}", fileOf(cursor), line, nameOf(cursor));
}

[[noreturn]] void fail(CXCursor cursor, const std::string& reason)
{
    throw HeaderError(fmt::format("{}: {}", placeOf(cursor), reason));
}

bool isUpper(std::string_view text, size_t at)
{
    return at < text.size() && std::isupper(static_cast<unsigned char>(text[at])) != 0;
}

/// The name of a request: radioGetLteCellInfo is get-lte-cell-info. A word begins at a capital, but for those inside an
/// abbreviation: radioGetRRCStatus is get-rrc-status.
std::string requestName(std::string_view function)
{
    const std::string_view rest = function.substr(std::string_view("radio").size());
    std::string kebab;
    for (size_t i = 0; i < rest.size(); ++i) {
        const bool begins = isUpper(rest, i) && i != 0 &&
                            (!isUpper(rest, i - 1) || (i + 1 < rest.size() && !isUpper(rest, i + 1)));
        kebab += begins ? "-" : "";
        kebab += static_cast<char>(std::tolower(static_cast<unsigned char>(rest[i])));
    }
    return kebab;
}

/// RADIO_EVENT_TEST_IND is test.
std::string eventName(std::string constant)
{
    constexpr std::string_view kFront = "RADIO_EVENT_";
    constexpr std::string_view kBack = "_IND";
    constant.erase(0, kFront.size());
    if (constant.ends_with(kBack)) {
        constant.resize(constant.size() - kBack.size());
    }
    std::ranges::transform(constant, constant.begin(), [](unsigned char c) {
        return c == '_' ? '-' : static_cast<char>(std::tolower(c));
    });
    return constant;
}

/// What the enumerators have in common up to an underscore.
size_t commonFront(const std::vector<std::string>& names)
{
    std::string front = names.front();
    for (const std::string& name : names) {
        front.resize(static_cast<size_t>(std::ranges::mismatch(front, name).in1 - front.begin()));
    }
    const size_t end = front.rfind('_');
    return names.size() < 2 || end == std::string::npos ? 0 : end + 1;
}

std::string labelOf(std::string rest)
{
    std::ranges::transform(rest, rest.begin(), [](unsigned char c) {
        return c == '_' ? ' ' : static_cast<char>(std::tolower(c));
    });
    return rest;
}

/// The names of numbers without their sign's word: int32, uint8, …
std::string numberType(CXType type)
{
    const CXType canonical = clang_getCanonicalType(type);
    const auto bits = 8 * clang_Type_getSizeOf(canonical);
    switch (canonical.kind) {
    case CXType_Bool:
        return "bool";
    case CXType_Char_S:
    case CXType_Char_U:
        return "char";
    case CXType_SChar:
    case CXType_Short:
    case CXType_Int:
    case CXType_Long:
    case CXType_LongLong:
        return fmt::format("int{}", bits);
    case CXType_UChar:
    case CXType_UShort:
    case CXType_UInt:
    case CXType_ULong:
    case CXType_ULongLong:
        return fmt::format("uint{}", bits);
    case CXType_Enum:
        return numberType(clang_getEnumDeclIntegerType(clang_getTypeDeclaration(canonical)));
    default:
        return "";
    }
}

bool isRecord(CXType type)
{
    return clang_getCanonicalType(type).kind == CXType_Record;
}

Json nameIn(const Json& described)
{
    return described["name"];
}

/// Collects the headers' declarations and makes the document of them.
class Headers {
public:
    Headers(std::string include, const Aliases& aliases) : mInclude(std::move(include)), mAliases(aliases) {}

    Json read()
    {
        const Unit unit = parse();
        forEachDeclaration(clang_getTranslationUnitCursor(unit.get()),
                           [&](CXCursor cursor) { note(cursor); });
        readEnumerations();
        readRecords();
        readFunctions();
        readEvents();
        return {{"format", 1},       {"domains", mDomains}, {"functions", mFunctions},
                {"events", mEvents}, {"records", mRecords}, {"enumerations", mEnumerations}};
    }

private:
    struct DisposeUnit {
        void operator()(CXTranslationUnit unit) const { clang_disposeTranslationUnit(unit); }
    };
    using Unit = std::unique_ptr<CXTranslationUnitImpl, DisposeUnit>;

    Unit parse()
    {
        mIndex.reset(clang_createIndex(0, 1));
        const std::string option = "-I" + mInclude;
        const char* arguments[] = {"-xc++", "-std=c++20", option.c_str()};
        CXUnsavedFile all{"all.h",
                          "#include \"radio_apis/radio_apis.h\"\n#include \"radio_apis/converters.h\"\n", 0};
        all.Length = std::string_view(all.Contents).size();
        Unit unit(clang_parseTranslationUnit(mIndex.get(), "all.h", arguments, std::size(arguments), &all, 1,
                                             CXTranslationUnit_None));
        if (!unit) {
            throw HeaderError("the headers can't be parsed");
        }
        for (unsigned i = 0; i < clang_getNumDiagnostics(unit.get()); ++i) {
            const CXDiagnostic diagnostic = clang_getDiagnostic(unit.get(), i);
            const auto severity = clang_getDiagnosticSeverity(diagnostic);
            const std::string text =
                taken(clang_formatDiagnostic(diagnostic, CXDiagnostic_DisplaySourceLocation));
            clang_disposeDiagnostic(diagnostic);
            if (severity >= CXDiagnostic_Error) {
                throw HeaderError(text);
            }
        }
        return unit;
    }

    bool isOurs(CXCursor cursor) const { return fileOf(cursor).starts_with(mInclude + "/radio_apis/"); }

    void forEachDeclaration(CXCursor parent, const std::function<void(CXCursor)>& visit)
    {
        forEachChild(parent, [&](CXCursor cursor) {
            const CXCursorKind kind = clang_getCursorKind(cursor);
            if (kind == CXCursor_LinkageSpec || kind == CXCursor_UnexposedDecl) { // extern "C"
                forEachDeclaration(cursor, visit);
            } else if (isOurs(cursor)) {
                visit(cursor);
            }
        });
    }

    void note(CXCursor cursor)
    {
        switch (clang_getCursorKind(cursor)) {
        case CXCursor_FunctionDecl:
            mFunctionCursors.push_back(cursor);
            break;
        case CXCursor_EnumDecl:
            mEnumCursors.push_back(cursor);
            break;
        case CXCursor_StructDecl:
            if (clang_isCursorDefinition(cursor) != 0) {
                mRecordCursors.push_back(cursor);
            }
            break;
        case CXCursor_TypeAliasDecl:
            if (isRecord(clang_getTypedefDeclUnderlyingType(cursor))) {
                mRecordCursors.push_back(cursor);
            }
            break;
        default:
            break;
        }
    }

    Comment commentOf(CXCursor cursor) const
    {
        try {
            return parseComment(taken(clang_Cursor_getRawCommentText(cursor)), mAliases);
        } catch (const HeaderError& error) {
            fail(cursor, error.what());
        }
    }

    /// The title of the header's domain; empty for a header that is none.
    std::string domainTitle(const std::string& path, Json& domain) const
    {
        std::ifstream file(path);
        std::string raw;
        for (std::string line; std::getline(file, line) && line.starts_with("///");) {
            raw += line + '\n';
        }
        const Comment comment = parseComment(raw, mAliases);
        domain["text"] = comment.text.text;
        return comment.text.domain;
    }

    /// The domain that a function's header is, or an empty name.
    std::string domainOf(CXCursor function)
    {
        const std::string path = fileOf(function);
        std::string name = fs::path(path).stem();
        if (!mSeenHeaders.insert(name).second) {
            return mDomainNames.contains(name) ? name : "";
        }
        Json domain = {{"name", name}, {"title", ""}};
        domain["title"] = domainTitle(path, domain);
        if (domain["title"].get_ref<const std::string&>().empty()) {
            return "";
        }
        mDomainNames.insert(name);
        mDomains.push_back(domain);
        return name;
    }

    void readEnumerations()
    {
        for (const CXCursor cursor : mEnumCursors) {
            std::vector<CXCursor> enumerators;
            std::vector<std::string> names;
            forEachChild(cursor, [&](CXCursor child) {
                if (clang_getCursorKind(child) == CXCursor_EnumConstantDecl) {
                    enumerators.push_back(child);
                    names.push_back(nameOf(child));
                }
            });
            const size_t front = commonFront(names);
            Json values = Json::array();
            for (const CXCursor enumerator : enumerators) {
                const Text text = commentOf(enumerator).text;
                const std::string constant = nameOf(enumerator);
                const Json value = {
                    {"name", text.label.empty() ? labelOf(constant.substr(front)) : text.label},
                    {"value", clang_getEnumConstantDeclValue(enumerator)},
                    {"constant", constant},
                    {"text", text.text}};
                values.push_back(value);
                mConstants[constant] = value;
                mEnumeratorTexts[constant] = text;
            }
            mEnumerations.push_back({{"name", nameOf(cursor)},
                                     {"type", numberType(clang_getCursorType(cursor))},
                                     {"text", commentOf(cursor).text.text},
                                     {"values", values}});
        }
    }

    /// `4: LTE, 5: NR`, the name of an enumeration, or the names of some enumerators.
    Json valuesOf(CXCursor cursor, const std::string& written) const
    {
        const auto whole = std::ranges::find(mEnumerations, Json(written), nameIn);
        if (whole != mEnumerations.end()) {
            return namesOnly((*whole)["values"]);
        }
        static const std::regex named(R"(\s*(-?\d+): (.*?)\s*)");
        Json values = Json::array();
        std::istringstream parts(written);
        for (std::string part; std::getline(parts, part, ',');) {
            std::smatch match;
            part.erase(0, part.find_first_not_of(' '));
            if (const auto constant = mConstants.find(part); constant != mConstants.end()) {
                values.push_back(constant->second);
            } else if (std::regex_match(part, match, named)) {
                values.push_back({{"name", match.str(2)}, {"value", std::stoll(match[1])}});
            } else {
                fail(cursor, fmt::format("'{}' is neither 'NUMBER: NAME' nor an enumerator", part));
            }
        }
        return namesOnly(values);
    }

    static Json namesOnly(const Json& values)
    {
        Json out = Json::array();
        for (const Json& value : values) {
            out.push_back({{"name", value["name"]}, {"value", value["value"]}});
        }
        return out;
    }

    /// What arguments and members have in common.
    void describe(Json& out, CXCursor cursor, const Text& text) const
    {
        if (text.text.empty()) {
            fail(cursor, "has no meaning");
        }
        if (!text.called.empty()) {
            out["constant"] = out["name"];
            out["name"] = text.called;
        }
        out["text"] = text.text;
        if (!text.unit.empty()) {
            out["unit"] = text.unit;
        }
        if (text.range) {
            out["range"] = {text.range->least, text.range->most};
            if (text.range->multipleOf != 1) {
                out["multipleOf"] = text.range->multipleOf;
            }
        }
        if (!text.values.empty()) {
            out["values"] = valuesOf(cursor, text.values);
        }
        for (const auto& [name, isSo] : {std::pair("signed", text.isSigned),
                                         {"failure", text.tellsFailure},
                                         {"private", text.isConfidential},
                                         {"unused", text.isUnused}}) {
            if (isSo) {
                out[name] = true;
            }
        }
    }

    /// The name that the document has for a record.
    std::string recordName(CXType type) const
    {
        // By the declaration, which is not const.
        const CXCursor declaration = clang_getTypeDeclaration(clang_getCanonicalType(type));
        const auto found =
            mRecordNames.find(spelled(clang_getCanonicalType(clang_getCursorType(declaration))));
        return found != mRecordNames.end() ? found->second : "";
    }

    /// What a number, a record, or the elements of an array are.
    std::string elementType(CXCursor cursor, CXType type) const
    {
        const std::string name = isRecord(type) ? recordName(type) : numberType(type);
        return name.empty() ? (fail(cursor, fmt::format("has the type {}", spelled(type))), "") : name;
    }

    Json memberOf(CXCursor record, CXType type, CXCursor field) const
    {
        const CXCursor primary = clang_getSpecializedCursorTemplate(record);
        CXCursor described = field;
        if (clang_Cursor_isNull(primary) == 0) {
            forEachChild(primary, [&](CXCursor child) {
                described = nameOf(child) == nameOf(field) ? child : described;
            });
        }
        Json member = {{"name", nameOf(field)}};
        Text text = commentOf(described).text;
        CXType element = clang_getCanonicalType(clang_getCursorType(field));
        Json lengths = Json::array();
        while (element.kind == CXType_ConstantArray) {
            lengths.push_back(clang_getArraySize(element));
            element = clang_getCanonicalType(clang_getArrayElementType(element));
        }
        describe(member, field, text);
        member["type"] = elementType(field, element);
        member["offset"] = clang_Type_getOffsetOf(type, nameOf(field).c_str()) / 8;
        if (!lengths.empty()) {
            member["array"] = lengths;
        }
        if (!text.countedBy.empty()) {
            member["countedBy"] = text.countedBy;
        }
        return member;
    }

    /// Members are counted by others, which may have a name of their own outside of C++.
    static void connectCounts(CXCursor cursor, Json& members)
    {
        for (Json& member : members) {
            if (!member.contains("countedBy")) {
                continue;
            }
            const auto count = std::ranges::find_if(members, [&](const Json& other) {
                return other.value("constant", other["name"].get<std::string>()) == member["countedBy"];
            });
            if (count == members.end()) {
                fail(cursor, fmt::format("has no {} to count {}", member["countedBy"].get<std::string>(),
                                         member["name"].get<std::string>()));
            }
            member["countedBy"] = (*count)["name"];
            (*count)["counts"] = member["name"];
        }
    }

    void readRecords()
    {
        for (const CXCursor cursor : mRecordCursors) {
            const std::string canonical = spelled(clang_getCanonicalType(clang_getCursorType(cursor)));
            mRecordNames.emplace(canonical, nameOf(cursor));
        }
        for (const CXCursor cursor : mRecordCursors) {
            if (nameOf(cursor) != "RadioApisResultType") {
                readRecord(cursor);
            } else {
                readResult(cursor);
            }
        }
    }

    void readRecord(CXCursor cursor)
    {
        const CXType type = clang_getCanonicalType(clang_getCursorType(cursor));
        const CXCursor definition = clang_getTypeDeclaration(type);
        const Text text = commentOf(cursor).text;
        if (text.text.empty()) {
            fail(cursor, "has no meaning");
        }
        Json members = Json::array();
        forEachField(type, [&](CXCursor field) {
            members.push_back(memberOf(definition, type, field));
            if (text.isConfidential) {
                members.back()["private"] = true;
            }
        });
        connectCounts(cursor, members);
        mRecords.push_back({{"name", nameOf(cursor)},
                            {"size", clang_Type_getSizeOf(type)},
                            {"header", fs::path(fileOf(cursor)).filename()},
                            {"text", text.text},
                            {"members", members}});
    }

    void readResult(CXCursor cursor)
    {
        forEachField(clang_getCursorType(cursor), [&](CXCursor rsp) {
            forEachField(clang_getCanonicalType(clang_getCursorType(rsp)), [&](CXCursor member) {
                mAnswers[nameOf(member)] = elementType(member, clang_getCursorType(member));
            });
        });
    }

    void readFunctions()
    {
        for (const CXCursor cursor : mFunctionCursors) {
            const std::string domain = domainOf(cursor);
            const Comment comment = commentOf(cursor);
            const auto [text, details] = firstSentence(comment.text.text);
            Json function = {{"name", nameOf(cursor)}};
            if (!domain.empty()) {
                function["request"] = requestName(nameOf(cursor));
                function["domain"] = domain;
            }
            function["header"] = fs::path(fileOf(cursor)).filename();
            function["text"] = text;
            if (!details.empty()) {
                function["details"] = details;
            }
            function["arguments"] = argumentsOf(cursor, comment);
            if (!domain.empty()) {
                addAnswer(cursor, comment, function);
            }
            function["type"] = spelled(clang_getCursorResultType(cursor));
            if (!comment.returns.empty()) {
                function["returns"] = comment.returns;
            }
            mFunctions.push_back(function);
        }
    }

    Json argumentsOf(CXCursor function, const Comment& comment) const
    {
        Json arguments = Json::array();
        for (int i = 0; i < clang_Cursor_getNumArguments(function); ++i) {
            const CXCursor cursor = clang_Cursor_getArgument(function, static_cast<unsigned>(i));
            const std::string name = nameOf(cursor);
            const CXType type = clang_getCursorType(cursor);
            const auto text = comment.parameters.find(name);
            Json argument = {{"name", name.empty() ? "unused" : name}};
            if (name.empty()) {
                argument["unused"] = true;
            }
            if (text != comment.parameters.end()) {
                describe(argument, cursor, text->second);
            } else if (fs::path(fileOf(function)).stem() != "converters") { // there the header's head tells
                fail(cursor, "has no meaning");
            }
            argument["type"] = spelled(type);
            addForm(cursor, type, text != comment.parameters.end() ? text->second : Text(), argument);
            arguments.push_back(argument);
        }
        connectCounts(function, arguments);
        return arguments;
    }

    /// How a value of the argument is given: the kind of value, and of which type its number or its elements are.
    void addForm(CXCursor cursor, CXType type, const Text& text, Json& argument) const
    {
        const CXType canonical = clang_getCanonicalType(type);
        const CXType pointee = clang_getPointeeType(canonical);
        const auto form = [&](const char* name, const std::string& of) {
            argument["form"] = name;
            argument["of"] = of;
        };
        if (argument["name"] == "userData" || argument["name"] == "callback" || pointee.kind == CXType_Void) {
            return;
        }
        if (const std::string number = numberType(type); !number.empty()) {
            form("number", number);
            addEnumeration(canonical, argument);
        } else if (canonical.kind == CXType_Pointer && !text.countedBy.empty()) {
            form("list", elementType(cursor, pointee));
            argument["countedBy"] = text.countedBy;
        } else if (canonical.kind == CXType_Pointer && numberType(pointee) == "char") {
            form("text", "char");
        } else if (const CXType record = canonical.kind == CXType_LValueReference ? pointee : canonical;
                   isRecord(record) && !recordName(record).empty()) {
            form("record", recordName(record));
        } else if (clang_Type_getNumTemplateArguments(record) > 0) {
            form("records", elementType(cursor, clang_Type_getTemplateArgumentAsType(record, 0)));
        } else {
            fail(cursor, fmt::format("has the type {}, and no \\countedby", spelled(type)));
        }
    }

    /// The names of an enumeration that is an argument's type go without saying.
    void addEnumeration(CXType type, Json& argument) const
    {
        if (type.kind == CXType_Enum && !argument.contains("values")) {
            const CXCursor enumeration = clang_getTypeDeclaration(type);
            argument["values"] = valuesOf(enumeration, nameOf(enumeration));
        }
    }

    void addAnswer(CXCursor cursor, const Comment& comment, Json& function) const
    {
        static const std::regex answer(R"(`rsp\.(\w+)`)");
        const std::string text =
            comment.parameters.contains("callback") ? comment.parameters.at("callback").text : "";
        std::smatch match;
        if (comment.text.isUnsupported) {
            function["unsupported"] = true;
        } else if (std::regex_search(text, match, answer)) {
            const auto record = mAnswers.find(match[1]);
            if (record == mAnswers.end()) {
                fail(cursor, fmt::format("there is no rsp.{}", match.str(1)));
            }
            function["answer"] = {{"member", match[1]}, {"record", record->second}};
        }
    }

    void readEvents()
    {
        const auto types = std::ranges::find(mEnumerations, Json("RADIO_EVENT_TYPE"), nameIn);
        for (const Json& value : (*types)["values"]) {
            const std::string constant = value["constant"];
            const Text& text = mEnumeratorTexts[constant];
            if (text.record.empty()) {
                continue;
            }
            const auto isRecord = [&](const Json& record) { return record["name"] == text.record; };
            if (std::ranges::none_of(mRecords, isRecord)) {
                throw HeaderError(fmt::format("{}: there is no record {}", constant, text.record));
            }
            mEvents.push_back({{"name", text.called.empty() ? eventName(constant) : text.called},
                               {"constant", constant},
                               {"number", value["value"]},
                               {"record", text.record},
                               {"text", text.text}});
        }
    }

    struct DisposeIndex {
        void operator()(void* index) const { clang_disposeIndex(index); }
    };

    const std::string mInclude;
    const Aliases& mAliases;
    std::unique_ptr<void, DisposeIndex> mIndex;
    std::vector<CXCursor> mFunctionCursors;
    std::vector<CXCursor> mEnumCursors;
    std::vector<CXCursor> mRecordCursors;
    std::set<std::string> mSeenHeaders;
    std::set<std::string> mDomainNames;
    std::map<std::string, Json> mConstants;
    std::map<std::string, Text> mEnumeratorTexts;
    std::map<std::string, std::string> mRecordNames; ///< by the type as the compiler spells it
    std::map<std::string, std::string> mAnswers;     ///< the record of each member of rsp
    Json mDomains = Json::array();
    Json mFunctions = Json::array();
    Json mEvents = Json::array();
    Json mRecords = Json::array();
    Json mEnumerations = Json::array();
};

} // namespace

Json readHeaders(const std::string& include, const Aliases& aliases)
{
    return Headers(include, aliases).read();
}

} // namespace reader
