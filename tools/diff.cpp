#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "catalog_tree.h"
#include "commands.h"
#include "difference.h"
#include "leaves.h"
#include "output.h"
#include "suggest.h"

namespace qv::tools {
namespace {

constexpr const char* kNothing = "/dev/null"; ///< how git names the side on which a file isn't there

/// Name of a number's value in parentheses, where it has one.
std::string nameOf(const QvDatabaseCatalogField_t& field, const std::byte* pBytes)
{
    if (field.valueNumber != 0) {
        for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
            if (static_cast<double>(value.value) == numberAt(field, pBytes)) {
                return std::string(" (") + value.pShort + ')';
            }
        }
    }
    return "";
}

std::string hexOf(const std::byte* pBytes, std::size_t width)
{
    std::string text = "0x";
    for (std::size_t i = width; i-- > 0;) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", std::to_integer<unsigned>(pBytes[i]));
        text += digits;
    }
    return text;
}

std::string plural(std::size_t number, const char* pWord)
{
    return std::to_string(number) + ' ' + pWord + (number == 1 ? "" : "s");
}

/// Two sets.
class Sides {
public:
    explicit Sides(Tracing& tracing) : sessions_{Session(tracing), Session(tracing)} {}

    /// A failure is told.
    bool load(const Options& options)
    {
        for (std::size_t i = 0; i < 2; ++i) {
            const std::string& name = options.words[i];
            if (!sessions_[i].open()) {
                return false;
            }
            if (name != kNothing && (!readInput(name, options, inputs_[i]) || !sessions_[i].load(inputs_[i]))) {
                return false;
            }
            carriers_[i] = name == kNothing ? Carrier{"", 0} : carrierOf(inputs_[i]);
            if (carriers_[i].documents == 0 && name != kNothing) {
                complain("warning: " + inputs_[i].shown() + " holds nothing of a parameter set");
            }
        }
        return true;
    }

    const Session& operator[](std::size_t side) const { return sessions_[side]; }

    /// Whether the records are the same byte for byte.
    bool haveSameBytes(const QvDatabaseCatalogCategory_t& category) const
    {
        return std::memcmp(sessions_[0].record(category.pKey), sessions_[1].record(category.pKey),
                           category.recordSize) == 0;
    }

    /// The bytes of an element on one side.
    const std::byte* bytes(const Target& element, std::size_t side) const
    {
        return bytesOf(element, sessions_[side].record(element.pCategory->category.pKey));
    }

    /// Why the field must differ: a form that doesn't carry it. Empty where both do.
    std::string note(const Difference& difference, const Carriage& carriage) const
    {
        const Target& field = difference.target;
        if (difference.kind == Difference::Padding) {
            return "";
        }
        for (const Carrier& carrier : carriers_) {
            if (carrier.documents != 0 && (carriage.readFrom(field) & carrier.documents) == 0) {
                return "no place in " + carrier.name;
            }
        }
        for (const Carrier& carrier : carriers_) {
            if (carrier.documents != 0 && (carriage.writtenTo(field) & carrier.documents) == 0) {
                return "not saved into " + carrier.name;
            }
        }
        return "";
    }

private:
    Session sessions_[2];
    Input inputs_[2];
    Carrier carriers_[2];
};

/// What differs, as lines for people or as JSON objects.
class Printer {
public:
    Printer(const Options& options, const Sides& sides)
        : asJson_(options.asJson), isColoured_(!options.asJson && isColoured(stdout)), sides_(sides)
    {
    }

    void print(const Difference& difference, const std::string& note)
    {
        note_ = note;
        switch (difference.kind) {
        case Difference::Values:
            for (const std::size_t index : difference.elements) {
                printElement(elementOf(difference.target, index));
            }
            break;
        case Difference::Sum:
            printSum(difference);
            break;
        case Difference::Length:
            printLength(difference);
            break;
        case Difference::Padding:
            printLine(difference.target.path, asJson_
                                                  ? R"("padding": )" + std::to_string(difference.number) +
                                                        R"(, "first": )" + std::to_string(difference.most)
                                                  : plural(difference.number, "byte") + " between members, first at " +
                                                        std::to_string(difference.most));
            break;
        }
    }

private:
    void printLine(const std::string& path, const std::string& text)
    {
        if (asJson_) {
            std::printf("%s\n    {\"path\": %s, %s, \"note\": %s}", number_ == 0 ? "" : ",", jsonText(path).c_str(),
                        text.c_str(), jsonText(note_).c_str());
        } else {
            std::printf("%s  %s%s\n", path.c_str(), text.c_str(), note_.empty() ? "" : ("  (" + note_ + ')').c_str());
        }
        ++number_;
    }

    std::string painted(const std::string& text, const char* pColour) const
    {
        return isColoured_ ? std::string("\x1b[") + pColour + 'm' + text + "\x1b[m" : text;
    }

    /// "old -> new".
    std::string change(const std::string& old, const std::string& now) const
    {
        return painted(old, "31") + " -> " + painted(now, "32");
    }

    void printElement(const Target& element)
    {
        const QvDatabaseCatalogField_t& field = element.pNode->field;
        std::string texts[2];
        for (std::size_t side = 0; side < 2; ++side) {
            texts[side] = valueAt(field, sides_.bytes(element, side));
        }
        const bool isSame = texts[0] == texts[1];
        const bool isText = field.element == QvDatabaseCatalogElement_Text;
        for (std::size_t side = 0; side < 2 && !asJson_; ++side) {
            texts[side] += nameOf(field, sides_.bytes(element, side));
            if (isSame && !isText) {
                texts[side] += " (" + hexOf(sides_.bytes(element, side), field.width) + ')';
            }
        }
        if (isSame && isText) {
            note_ = "differs behind the text's end";
        }
        printLine(element.path,
                  asJson_ ? R"("old": )" + texts[0] + R"(, "new": )" + texts[1] : change(texts[0], texts[1]));
    }

    void printSum(const Difference& difference)
    {
        const std::string most =
            elementOf(difference.target, difference.most).path.substr(difference.target.path.size());
        const std::string by = std::isinf(difference.by) ? "null" : shortNumber(difference.by);
        std::string text;
        if (asJson_) {
            text = R"("elements": )" + std::to_string(difference.target.elements()) + R"(, "differ": )" +
                   std::to_string(difference.number) + R"(, "most": ")" + most + R"(", "by": )" + by;
        } else {
            text = std::to_string(difference.number) + " of " + std::to_string(difference.target.elements()) +
                   " differ, " + (difference.by > 0 ? "most " + most + " by " + by : "first " + most);
        }
        printLine(difference.target.path, text);
    }

    void printLength(const Difference& difference)
    {
        const std::size_t* pLengths = difference.lengths;
        std::string text;
        if (asJson_) {
            text =
                R"("oldLength": )" + std::to_string(pLengths[0]) + R"(, "newLength": )" + std::to_string(pLengths[1]);
        } else {
            text = change(std::to_string(pLengths[0]), plural(pLengths[1], "item")) + ", only in the " +
                   (pLengths[0] > pLengths[1] ? "first:" : "second:") + extraItems(difference);
        }
        printLine(difference.target.path, text);
    }

    /// The items that one side alone has, with their names where they have such.
    std::string extraItems(const Difference& difference) const
    {
        const std::size_t side = difference.lengths[0] > difference.lengths[1] ? 0 : 1;
        std::string text;
        for (std::size_t i = difference.lengths[1 - side]; i < difference.lengths[side]; ++i) {
            const Target item = PathTree::item(difference.target, i);
            text += " [" + std::to_string(i) + ']';
            for (const PathNode& node : PathTree::membersOf(item)) {
                if (node.name == "name" && node.field.element == QvDatabaseCatalogElement_Text) {
                    text += ' ' + valueAt(node.field, sides_.bytes(PathTree::member(item, node), side));
                }
            }
        }
        return text;
    }

    static std::string shortNumber(double number)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.6g", number);
        return text;
    }

    bool asJson_;
    bool isColoured_;
    const Sides& sides_;
    std::string note_;
    std::size_t number_ = 0;
};

/// What a category is called where no path is printed.
std::string nameOf(const PathCategory& category)
{
    return category.name.empty() ? category.category.pKey : category.name;
}

/// The categories that --category names, by key or by the name of their paths; all without one.
bool chooseCategories(const Options& options, const PathTree& tree, std::vector<QvDatabaseCatalogCategory_t>& chosen,
                      std::string& error)
{
    std::vector<std::string> wanted = options.categories;
    std::vector<std::string> names;
    for (const QvDatabaseCatalogCategory_t& category : tree.keys()) {
        if (!isInSets(category)) {
            continue;
        }
        const auto isNamed = [&](const std::string& name) {
            return name == category.pKey || name == tree.category(category.pKey).name;
        };
        if (options.categories.empty() || std::erase_if(wanted, isNamed) != 0) {
            chosen.push_back(category);
        }
        names.emplace_back(category.pKey);
    }
    if (!wanted.empty()) {
        error = "files hold no category " + wanted[0] + suggestion(wanted[0], names);
    }
    return wanted.empty();
}

/// One line a category.
void printStatistics(const Options& options, const std::string& path, const std::vector<Difference>& differences,
                     bool isFirst)
{
    std::size_t values = 0;
    for (const Difference& difference : differences) {
        values += difference.number;
    }
    if (options.asJson) {
        std::printf("%s\n    {\"category\": %s, \"fields\": %zu, \"values\": %zu}", isFirst ? "" : ",",
                    jsonText(path).c_str(), differences.size(), values);
    } else {
        std::printf("%-12s %s, %s\n", path.c_str(), plural(differences.size(), "field").c_str(),
                    plural(values, "value").c_str());
    }
}

} // namespace

ExitStatus diff(const Options& options)
{
    if (isStream(options.words[0]) && isStream(options.words[1])) {
        return refuseUsage(options, "standard input can only be one of the two");
    }
    if (options.isExact && options.tolerance.has_value()) {
        return refuseUsage(options, "--exact allows no --tolerance");
    }
    const PathTree tree(options.names == "simulator");
    std::vector<QvDatabaseCatalogCategory_t> categories;
    if (std::string error; !chooseCategories(options, tree, categories, error)) {
        return refuseUsage(options, error);
    }
    Tracing tracing(options);
    Sides sides(tracing);
    if (!sides.load(options)) {
        return kTrouble;
    }
    const Rules rules{options.isExact, options.showsAll, options.tolerance};
    if (options.asJson) {
        std::printf("{\n  \"old\": %s,\n  \"new\": %s,\n  \"%s\": [", jsonText(options.words[0]).c_str(),
                    jsonText(options.words[1]).c_str(), options.showsStatistics ? "categories" : "differences");
    }
    Printer printer(options, sides);
    bool isSame = true;
    for (const QvDatabaseCatalogCategory_t& key : categories) {
        if (sides.haveSameBytes(key)) {
            continue;
        }
        const PathCategory& category = tree.category(key.pKey);
        const Carriage carriage(category.category);
        const std::vector<Difference> differences = differencesOf(category, carriage, sides[0], sides[1], rules);
        if (options.showsStatistics && !differences.empty()) {
            printStatistics(options, nameOf(category), differences, isSame);
        }
        for (const Difference& difference : differences) {
            if (!options.showsStatistics) {
                printer.print(difference, sides.note(difference, carriage));
            }
        }
        isSame = isSame && differences.empty();
    }
    if (options.asJson) {
        std::printf("%s]\n}\n", isSame ? "" : "\n  ");
    }
    return isSame ? kDone : kFound;
}

} // namespace qv::tools
