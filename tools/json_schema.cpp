#include "json_schema.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include <qv_json_c/qv_json.h>

#include "catalog_tree.h"
#include "json_tree.h"

namespace qv::tools {
namespace {

using Category = QvDatabaseCatalogCategory_t;
using CatalogField = QvDatabaseCatalogField_t;

/// A kind of file, and what may stand in it.
struct Form {
    std::string_view name;
    const char* pTitle;
    std::vector<QvDatabaseCatalogDocument_t> documents;
    bool isMeta = false;
};

std::vector<Form> allForms()
{
    constexpr auto kVersion = QvDatabaseCatalogDocument_Version;
    constexpr auto kCalibration = QvDatabaseCatalogDocument_Calibration;
    constexpr auto kTuning = QvDatabaseCatalogDocument_Tuning;
    constexpr auto kSimulator = QvDatabaseCatalogDocument_Simulator;
    constexpr auto kMeta = QvDatabaseCatalogDocument_Meta;
    return {
        {"", "Text document: calibration, tuning, simulator", {kVersion, kCalibration, kTuning, kSimulator}},
        {QvDatabaseCatalog_document(kTuning), "Tuning document", {kVersion, kCalibration, kTuning}},
        {QvDatabaseCatalog_document(kSimulator), "Simulator document", {kVersion, kCalibration, kSimulator}},
        {QvDatabaseCatalog_document(kCalibration), "Calibration document", {kVersion, kCalibration}},
        {QvDatabaseCatalog_document(kMeta), "Frame metadata", {kMeta, kSimulator}, true},
    };
}

/// A new tree, released at the end.
class Tree {
public:
    Tree()
    {
        if (QvJsonValue_create(QvJsonValueType_Object, &pRoot_) != 0) {
            throw std::bad_alloc();
        }
    }
    ~Tree() { QvJsonValue_delete(&pRoot_); }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;

    Json root() const { return Json(pRoot_); }

    std::string text() const
    {
        QvJsonWriterHandle_t writer = 0;
        char* pText = nullptr;
        if (QvJsonWriter_open(nullptr, &writer) != 0 || QvJsonWriter_stringify(writer, pRoot_, &pText) != 0) {
            QvJsonWriter_close(&writer);
            throw std::bad_alloc();
        }
        QvJsonWriter_close(&writer);
        std::string text = pText;
        std::free(pText);
        return text;
    }

    /// Hands all of the tree over as a member of another one.
    void moveInto(Json object, const std::string& key)
    {
        if (QvJsonValue_addValueToObject(object.get(), key.c_str(), &pRoot_) != 0) {
            throw std::bad_alloc();
        }
        pRoot_ = nullptr;
    }

private:
    QvJsonValue_t* pRoot_ = nullptr;
};

/// What documents may hold for an integer: every number whose bytes the member takes as they are, which are those of its
/// own sign and those of the sign that a save writes. Eight bytes without a sign are saved as if they had one.
std::pair<double, double> integerRange(const CatalogField& field)
{
    if (field.element == QvDatabaseCatalogElement_Bool) {
        return {0, 1};
    }
    const double values = std::exp2(8.0 * static_cast<double>(field.width));
    const bool isEverSigned = field.isSigned || field.isWrittenSigned || field.width == sizeof(std::int64_t);
    const bool isEverUnsigned = !field.isSigned || !field.isWrittenSigned;
    double minimum = isEverSigned ? -values / 2 : 0;
    double maximum = (isEverUnsigned ? values : values / 2) - 1;
    // A known range is one of the member's values. The negative among them have a second form in documents where the
    // signs differ, and then the type alone says what may stand there.
    if (field.minimum >= 0 || field.isSigned == field.isWrittenSigned) {
        minimum = std::max(minimum, field.minimum);
        maximum = std::min(maximum, field.maximum);
    }
    return {minimum, maximum};
}

std::string valueText(const QvDatabaseCatalogValue_t& value)
{
    return std::string(value.pShort) + ": " + value.pMeaning;
}

/// The meaning with unit, range and names of values, as an editor shows it over a key.
std::string description(const CatalogField& field)
{
    std::string text = field.pMeaning == nullptr ? "" : field.pMeaning;
    const auto add = [&text](const std::string& part) {
        if (!part.empty()) {
            text += (text.empty() ? "" : text.ends_with('.') ? " " : "; ") + part;
        }
    };
    add(field.pUnit == nullptr ? "" : std::string("unit: ") + field.pUnit);
    add(rangeText(field));
    if (field.roleRows != 0) {
        add(std::to_string(field.roleRows) + " rows of " + std::to_string(field.roleColumns) + ", row by row");
    }
    if (field.element == QvDatabaseCatalogElement_Bool && field.written == QvDatabaseCatalogElement_Integer) {
        add("0: false, 1: true");
    }
    for (const QvDatabaseCatalogValue_t& value : valuesOf(field)) {
        add(std::to_string(value.value) + " " + valueText(value));
    }
    return text;
}

/// One schema in the making: the document, and what its parts share.
class Schema {
public:
    explicit Schema(const Form& form)
    {
        const Json root = tree_.root();
        root.set("$schema", "http://json-schema.org/draft-07/schema#");
        root.set("title", form.pTitle);
        root.set("type", "object");
        for (QvDatabaseCatalogDocument_t document : form.documents) {
            for (const Category& category : categoriesOf(document)) {
                if (isCarriedBy(category, QvDatabaseCatalogDocument_Meta) == form.isMeta) {
                    addCategory(root, form, document, category);
                }
            }
        }
        if (root.has("properties")) {
            allowSchemaKey(root);
        }
        definitions_.moveInto(root, "definitions");
    }

    std::string text() const { return tree_.text(); }

private:
    void addCategory(Json root, const Form& form, QvDatabaseCatalogDocument_t document, const Category& category)
    {
        Json at = root;
        if (form.isMeta) {
            at = metaForm(root, category);
        }
        std::string_view place = category.pPlace;
        while (!place.empty()) {
            place.remove_prefix(1); // a slash
            const std::size_t end = std::min(place.find('/'), place.size());
            const std::string segment(place.substr(0, end));
            place.remove_prefix(end);
            if (segment == "*") {
                at.set("type", "array");
                at = at.member("items");
                if (!place.empty() || category.pClass == nullptr) {
                    at = at.member("else"); // an item without a class, which several categories may share
                }
            } else {
                at = beginObject(at).member(segment);
            }
        }
        const std::vector<FieldNode> fields = fieldsOf(document, category);
        if (category.pClass != nullptr) {
            addClass(at, document, category, fields);
            return;
        }
        describeRecord(at, category);
        if (!category.isWritten) {
            at.set("writeOnly", true);
        }
        addFields(beginObject(at), fields);
    }

    /// Metadata has two forms, which a reader tells from each other by the first member of the place of one.
    static Json metaForm(Json root, const Category& category)
    {
        const std::string_view place = category.pPlace;
        if (place.empty()) {
            const Json form = root.member("else");
            beginObject(form);
            allowSchemaKey(form);
            return form;
        }
        const std::string first(place.substr(1, place.find('/', 1) - 1));
        root.member("if").member("required").add(first.c_str());
        const Json form = root.member("then");
        beginObject(form);
        allowSchemaKey(form);
        return form;
    }

    /// An object that holds nothing but what is added to the result.
    static Json beginObject(Json at)
    {
        if (!at.has("properties")) {
            at.set("type", "object");
            at.member("properties");
            at.set("additionalProperties", false);
        }
        return at.member("properties");
    }

    /// Lets a document name its schema, as editors take it.
    static void allowSchemaKey(Json object)
    {
        const Json key = object.member("properties").member("$schema");
        key.set("description", "where this schema is found; for editors, the library passes over it");
        key.set("type", "string");
    }

    static void describeRecord(Json at, const Category& category)
    {
        if (at.has("description")) {
            at.set("title",
                   std::string(QvJsonValue_asString(at.member("title").get())) + ", " + shortType(category.pRecord));
            at.set("description",
                   std::string(QvJsonValue_asString(at.member("description").get())) + " " + category.pMeaning);
            return;
        }
        if (!at.has("title")) { // the document itself keeps its own
            at.set("title", shortType(category.pRecord));
        }
        at.set("description", category.pMeaning);
    }

    /// An item of a list that tells its record by a class. The class chooses the one schema that applies, so that what
    /// is wrong in the item is what an editor complains of, and not that it is none of twenty.
    void addClass(Json item, QvDatabaseCatalogDocument_t document, const Category& category,
                  const std::vector<FieldNode>& fields)
    {
        const char* pKey = category.pClassKey;
        if (!item.has("properties")) {
            item.set("type", "object");
            const bool mayLackClass = hasPlainItem(document, category.pPlace);
            (mayLackClass ? item.member("if") : item).member("required").add(pKey);
        }
        const Json names = item.member("properties").member(pKey);
        names.member("enum").add(category.pClass);
        names.member("enumDescriptions").add(category.pMeaning);

        Tree tree;
        describeRecord(tree.root(), category);
        const Json properties = beginObject(tree.root());
        const Json classMember = properties.member(pKey);
        classMember.set("description", "names the record that this object holds");
        classMember.set("const", category.pClass);
        tree.root().member("required").add(pKey);
        addFields(properties, fields);

        const Json branch = item.member("allOf").append();
        branch.member("if").member("properties").member(pKey).set("const", category.pClass);
        branch.member("if").member("required").add(pKey);
        branch.member("then").set("$ref", define(category.pClass, tree));
    }

    /// Whether items of a list may stand there without a class.
    static bool hasPlainItem(QvDatabaseCatalogDocument_t document, std::string_view place)
    {
        const std::vector<Category> categories = categoriesOf(document);
        return std::any_of(categories.begin(), categories.end(), [place](const Category& category) {
            return category.pClass == nullptr && place == category.pPlace;
        });
    }

    /// A key that stands there already is the same member of another record, or the class.
    void addFields(Json properties, const std::vector<FieldNode>& nodes)
    {
        for (const FieldNode& node : nodes) {
            if (!properties.has(node.field.pKey)) {
                addField(properties.member(node.field.pKey), node);
            }
        }
    }

    void addField(Json at, const FieldNode& node)
    {
        const CatalogField& field = node.field;
        if (field.pName != nullptr && std::string_view{field.pName} != field.pKey) {
            at.set("title", field.pName);
        }
        const std::string text = description(field);
        if (!text.empty()) {
            at.set("description", text);
        }
        if (field.direction == QvDatabaseCatalogDirection_ReadOnly) {
            at.set("writeOnly", true); // the keyword's view is that of the one who fills in the document
        } else if (field.direction == QvDatabaseCatalogDirection_WriteOnly) {
            at.set("readOnly", true);
        }
        if (field.written == QvDatabaseCatalogElement_Record) {
            addRecords(at, node);
        } else if (field.count == QvDatabaseCatalogCount_Members) {
            addMembers(at, node);
        } else {
            addElements(at, field);
        }
    }

    /// A list in its dimensions, and the element in the innermost.
    void addElements(Json at, const CatalogField& field)
    {
        Json inner = at;
        for (std::size_t dimension = 0; dimension < std::min(field.rank, std::size(field.extents)); ++dimension) {
            inner.set("type", "array");
            if (field.written != QvDatabaseCatalogElement_Text) {
                inner.set("minItems", field.extents[dimension]); // curves and matrices make sense as a whole only
            }
            inner.set("maxItems", field.extents[dimension]);
            inner = inner.member("items");
        }
        addElement(inner, field);
    }

    void addElement(Json at, const CatalogField& field)
    {
        switch (field.written) {
        case QvDatabaseCatalogElement_Bool:
            if (field.direction == QvDatabaseCatalogDirection_ReadWhileWriting) {
                at.member("type").add("boolean");
                at.member("type").add("null"); // as a save leaves it
            } else {
                at.set("type", "boolean");
            }
            break;
        case QvDatabaseCatalogElement_Integer:
            addInteger(at, field);
            break;
        case QvDatabaseCatalogElement_Float:
            addFloat(at, field);
            break;
        case QvDatabaseCatalogElement_Text:
            at.set("type", "string");
            at.set("maxLength", field.width); // one that fills the field needs no terminator
            break;
        default:
            at.set("type", "number");
            setRange(at, field.minimum, field.maximum);
            break;
        }
    }

    static void setRange(Json at, double minimum, double maximum)
    {
        if (!std::isinf(minimum)) {
            at.set("minimum", minimum);
        }
        if (!std::isinf(maximum)) {
            at.set("maximum", maximum);
        }
    }

    void addInteger(Json at, const CatalogField& field)
    {
        const std::vector<QvDatabaseCatalogValue_t> values = valuesOf(field);
        if (!values.empty()) {
            for (const QvDatabaseCatalogValue_t& value : values) {
                at.member("enum").add(value.value);
                at.member("enumDescriptions").add(valueText(value).c_str());
            }
            return;
        }
        const auto [minimum, maximum] = integerRange(field);
        at.set("type", "integer");
        setRange(at, minimum, maximum);
    }

    /// A float's own limits are the same everywhere, and long.
    void addFloat(Json at, const CatalogField& field)
    {
        constexpr double kMost = std::numeric_limits<float>::max();
        at.set("type", "number");
        setRange(at, field.minimum, field.maximum);
        Tree limits;
        setRange(limits.root(), -kMost, kMost);
        at.member("allOf").append().set("$ref", define("float", limits)); // nothing counts beside a plain $ref
    }

    /// A single record, held as the list of its numbers.
    void addMembers(Json at, const FieldNode& node)
    {
        at.set("type", "array");
        for (const FieldNode& member : node.fields) {
            const Json item = at.member("items").append();
            addField(item, member);
            item.set("title", member.field.pKey);
        }
        at.set("minItems", node.fields.size());
        at.set("maxItems", node.fields.size());
    }

    void addRecords(Json at, const FieldNode& node)
    {
        const CatalogField& field = node.field;
        Tree tree;
        // An object that only groups members is a part of its record, and named so.
        const std::string type =
            shortType(field.pRecord) + (field.pName == nullptr ? std::string("_") + field.pKey : "");
        tree.root().set("title", type);
        addFields(beginObject(tree.root()), node.fields);
        const std::string reference = define(type, tree);

        if (field.count == QvDatabaseCatalogCount_One) {
            at.member("allOf").append().set("$ref", reference);
            return;
        }
        switch (field.count) {
        case QvDatabaseCatalogCount_Counted:
        case QvDatabaseCatalogCount_Measured:
        case QvDatabaseCatalogCount_Heap:
            at.member("type").add("array");
            at.member("type").add("null"); // as a save writes a list without items
            break;
        default:
            at.set("type", "array");
            break;
        }
        at.member("items").set("$ref", reference);
        if (field.count == QvDatabaseCatalogCount_Fixed) {
            at.set("minItems", field.extents[0]);
        }
        if (field.count != QvDatabaseCatalogCount_Heap) {
            at.set("maxItems", field.extents[0]);
        }
    }

    /// Puts a schema among the definitions, once for all that are alike, and gives the reference to it. Of those that
    /// differ under the same name, the later ones take a number.
    std::string define(const std::string& name, Tree& tree)
    {
        const std::string text = tree.text();
        std::string unique = name;
        for (int i = 2;; ++i) {
            const auto same = std::find_if(defined_.begin(), defined_.end(),
                                           [&unique](const auto& definition) { return definition.first == unique; });
            if (same == defined_.end()) {
                tree.moveInto(definitions_.root(), unique);
                defined_.emplace_back(unique, text);
                break;
            }
            if (same->second == text) {
                break;
            }
            unique = name + "_" + std::to_string(i);
        }
        return "#/definitions/" + unique;
    }

    Tree tree_;
    Tree definitions_;
    std::vector<std::pair<std::string, std::string>> defined_; ///< name and text
};

} // namespace

bool makeSchema(std::string_view name, std::string& text)
{
    for (const Form& form : allForms()) {
        if (form.name == name) {
            text = Schema(form).text();
            return true;
        }
    }
    return false;
}

} // namespace qv::tools
