#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "commands.h"
#include "output.h"
#include "path_tree.h"
#include "reload.h"
#include "routes.h"
#include "same_records.h"
#include "session.h"
#include "settings.h"
#include "text_setter.h"

namespace qv::tools {
namespace {

/// Puts the changes into a copy of an image.
bool putIntoImage(const std::vector<Change>& changes, const Session& session, std::string& image, std::string& error)
{
    for (const Change& change : changes) {
        const Target& target = change.target;
        const QvDatabaseCatalogCategory_t& category = target.pCategory->category;
        const std::size_t begin = category.imageOffset + target.offset;
        const std::size_t length = target.pNode->field.width * target.elements();
        if (category.imageOffset == SIZE_MAX || target.heapOffset != SIZE_MAX || begin + length > image.size()) {
            error = target.path + ": an image doesn't carry it";
            return false;
        }
        const void* pRecord = session.record(category.pKey);
        std::memcpy(image.data() + begin, bytesOf(target, pRecord), length);
        if (!target.isElement()) { // a list that got another length
            const std::size_t counter = target.counterBase + target.pNode->field.counterOffset;
            std::memcpy(image.data() + category.imageOffset + counter, static_cast<const char*>(pRecord) + counter,
                        target.pNode->field.counterWidth);
        }
    }
    return true;
}

/// The values to set, where they go, and what comes of them.
class Setter {
public:
    explicit Setter(const Options& options)
        : options_(options), out_(options.output.empty() ? options.words[0] : options.output), tracing_(options),
          wanted_(tracing_), tree_(options.names == "simulator"), settings_(tree_, fields_, wanted_)
    {
    }

    bool run()
    {
        if (!wanted_.openWith(options_.words[0], options_, input_)) {
            return false;
        }
        if (input_.form == Form::CalibrationText) {
            return refuse("a plain calibration text can't be changed in place");
        }
        if (!isStream(out_) && !options_.output.empty() && formOf(out_, options_.from) != input_.form) {
            return refuse(std::string("set keeps the form ") + formName(input_.form) + ", which " + out_ +
                          " hasn't; convert changes it");
        }
        std::string error;
        for (std::size_t i = 1; i < options_.words.size(); ++i) {
            if (!settings_.apply(options_.words[i], error)) {
                return refuse(error);
            }
        }
        bytes_ = input_.bytes.view();
        if (!(input_.form == Form::Image ? putIntoImage(settings_.changes(), wanted_, bytes_, error)
                                         : putIntoText(error)) ||
            !isTaken(error)) {
            return refuse(error);
        }
        // A file that holds the values already is left alone.
        const bool isInPlace = options_.output.empty() && !isStream(out_);
        if ((!isInPlace || bytes_ != input_.bytes.view()) && !writeOutput(out_, bytes_)) {
            return false;
        }
        if (options_.asJson) {
            printJson();
        } else if (!isStream(out_)) {
            print();
        }
        return true;
    }

private:
    bool refuse(const std::string& error) const
    {
        complain(input_.shown() + ": " + error);
        return false;
    }

    bool putIntoText(std::string& error)
    {
        TextSetter text(bytes_, input_.form, fields_, wanted_);
        for (const Change& change : settings_.changes()) {
            if (!text.put(change, error)) {
                return false;
            }
        }
        bytes_ = text.text();
        hasNewCategory_ = text.hasNewCategory();
        for (const std::string& note : text.notes()) {
            complain("note: " + input_.shown() + ": " + note);
        }
        for (const Change& change : settings_.changes()) {
            places_.push_back(text.lineOf(change.target));
        }
        return true;
    }

    /// A load of the new bytes must give what the records hold now, each value that was asked for and all others as
    /// they were.
    bool isTaken(std::string& error)
    {
        Session found(tracing_);
        if (!found.open() || !reload(bytes_, input_.form, found)) {
            error = "the changed file would not load; nothing is written";
            return false;
        }
        FirstDifference difference;
        for (const Change& change : settings_.changes()) {
            if (!isSame(change.target, wanted_, found, difference)) {
                error = difference.path + ": a load would take " + difference.found +
                        " from the changed file and not " + difference.expected + "; nothing is written";
                return false;
            }
        }
        // A category that is new to the document may make a load note that it was there.
        if (!isSame(tree_, wanted_, found, hasNewCategory_, difference)) {
            error = "the change would also change " + difference.path + " from " + difference.expected + " to " +
                    difference.found + ", which stands in the same place; nothing is written unless that is set, too";
            return false;
        }
        return true;
    }

    /// What stands behind a file's name in a message: a line or an offset.
    std::string placeOf(std::size_t index) const
    {
        const Target& target = settings_.changes()[index].target;
        return input_.form == Form::Image
                   ? "offset " + std::to_string(target.pCategory->category.imageOffset + target.offset)
                   : std::to_string(places_[index]);
    }

    /// One line a value; settings of many values are summed up.
    void print() const
    {
        constexpr std::size_t kMost = 8;
        const std::vector<Change>& changes = settings_.changes();
        for (std::size_t i = 0; i < changes.size();) {
            std::size_t end = i;
            std::size_t different = 0;
            while (end < changes.size() && changes[end].setting == changes[i].setting) {
                different += changes[end].before != jsonOf(changes[end].target, wanted_, Members::All) ? 1U : 0U;
                ++end;
            }
            if (end - i > kMost) {
                std::printf("%s:%s: %s  %zu of %zu values changed\n", out_.c_str(), placeOf(i).c_str(),
                            settingOf(i).c_str(), different, end - i);
                i = end;
            }
            for (; i < end; ++i) {
                std::printf("%s:%s: %s\n", out_.c_str(), placeOf(i).c_str(), lineOf(changes[i]).c_str());
            }
        }
    }

    std::string lineOf(const Change& change) const
    {
        const Target& target = change.target;
        if (!target.isElement()) {
            return target.path + "  now " +
                   std::to_string(usedItems(target, wanted_.record(target.pCategory->category.pKey))) + " items";
        }
        const std::string after = jsonOf(target, wanted_, Members::All);
        return target.path + "  " + change.before + (change.before == after ? ", as before" : " -> " + after);
    }

    /// The path of a setting as it was typed.
    std::string settingOf(std::size_t change) const
    {
        const std::string& word = options_.words[settings_.changes()[change].setting + 1];
        return word.substr(0, word.find('='));
    }

    void printJson() const
    {
        std::printf("{\n  \"file\": %s,\n  \"changes\": [", jsonText(out_).c_str());
        const std::vector<Change>& changes = settings_.changes();
        for (std::size_t i = 0; i < changes.size(); ++i) {
            const Target& target = changes[i].target;
            std::printf("%s\n    {\"path\": %s, \"old\": %s, \"new\": %s, ", i == 0 ? "" : ",",
                        jsonText(target.path).c_str(), changes[i].before.c_str(),
                        jsonOf(target, wanted_, Members::All).c_str());
            if (input_.form == Form::Image) {
                std::printf("\"line\": null, \"offset\": %zu}", target.pCategory->category.imageOffset + target.offset);
            } else {
                std::printf("\"line\": %zu, \"offset\": null}", places_[i]);
            }
        }
        std::printf("\n  ]\n}\n");
    }

    const Options& options_;
    std::string out_;
    Tracing tracing_;
    Session wanted_; ///< holds what the file is to say
    PathTree tree_;
    FieldTrees fields_;
    Settings settings_;
    Input input_;
    std::string bytes_;
    std::vector<std::size_t> places_; ///< lines of the changes
    bool hasNewCategory_ = false;
};

} // namespace

ExitStatus set(const Options& options)
{
    const std::string& out = options.output.empty() ? options.words[0] : options.output;
    if (options.asJson && isStream(out)) {
        return refuseUsage(options,
                           "--json and the changed file both want standard output; -o says where the file goes");
    }
    return Setter(options).run() ? kDone : kRefused;
}

} // namespace qv::tools
