#pragma once

// Brings what records hold into a text document, field by field.

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "document.h"
#include "json_editor.h"
#include "places.h"
#include "routes.h"
#include "session.h"
#include "settings.h"

namespace qv::tools {

/// A text in JSON or `.ini` form that takes changes.
class TextSetter {
public:
    /// The session holds what the text is to say.
    TextSetter(std::string text, Form form, const FieldTrees& fields, Session& wanted);
    TextSetter(const TextSetter&) = delete;
    TextSetter& operator=(const TextSetter&) = delete;

    /// Brings one change into the text. False where the form can't hold it, with the reason.
    bool put(const Change& change, std::string& error);

    /// The text with all changes.
    const std::string& text();

    /// The line where a target stands, from 1; 0 where it doesn't.
    std::size_t lineOf(const Target& target);

    /// Whether a category came into the text that wasn't there.
    bool hasNewCategory() const { return hasNewCategory_; }

    /// What else has to be known of the changes, such as items that had to be written as well.
    const std::vector<std::string>& notes() const { return notes_; }

private:
    void reload();
    void finish();
    bool isNumber(const Reach& reach) const;
    bool isHeld(const Reach& reach) const;
    std::string elementText(const Reach& reach) const;
    bool add(const Target& target, const Reach& reach, std::string& error);
    bool addItems(const Target& target, const Reach& reach, JsonEditor& editor, std::string& error);
    bool addCategory(const Target& target, std::string& error);
    bool addObject(const Reach& reach, JsonEditor& editor, std::string& error);
    void noteDoubled(const Target& target, NodeIndex node);
    void noteClass(const Reach& reach);
    void addInitialization(const Reach& reach, NodeIndex section);
    std::vector<std::string> rootOrder() const;
    const std::byte* recordOf(const Reach& reach) const;

    std::string text_;
    Form form_;
    const FieldTrees& fields_;
    Session& wanted_;
    Document document_;
    std::unique_ptr<Places> pPlaces_;
    TextEdits edits_; ///< those that only replace values, still to be made
    std::vector<std::string> notes_;
    std::set<NodeIndex> replaced_; ///< whose values those are
    std::set<NodeIndex> looked_;   ///< for doubled keys
    bool hasNewCategory_ = false;
};

} // namespace qv::tools
