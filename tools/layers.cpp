#include "layers.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <qv_database_c/database_calibration.h>
#include <qv_database_c/database_misc.h>

#include "catalog_tree.h"
#include "check_image.h"
#include "document_fields.h"
#include "findings.h"
#include "output.h"
#include "path_tree.h"

namespace qv::tools {
namespace {

std::string plural(std::size_t number, const char* pOne, const char* pMany)
{
    return std::to_string(number) + ' ' + (number == 1 ? pOne : pMany);
}

bool hasCalibration(const Session& session)
{
    return static_cast<const QvDatabaseCalibration_t*>(session.record("CLB"))->isLoaded;
}

/// Goes through a bound document.
class LayerReader {
public:
    LayerReader(const Document& document, const DocumentFields& fields, const Session& session, Layer& layer)
        : document_(document), fields_(fields), session_(session), layer_(layer)
    {
    }

    void read()
    {
        layer_.comments = document_.comments().size();
        for (NodeIndex node = 0; node < document_.nodes().size(); ++node) {
            const Bound& bound = fields_[node];
            if (bound.fate == Fate::Unknown) {
                layer_.unknown.push_back(fields_.path(node, tree_) + " (line " +
                                         std::to_string(document_.place(document_[node].value.begin).line) + ')');
            }
            if (bound.hasCategory() && bound.isTaken()) {
                readTaken(node, bound);
            }
        }
        for (const auto& [node, bound] : fields_.seconds()) {
            if (bound.isTaken()) {
                readTaken(node, bound);
            }
        }
        readVersion();
    }

private:
    void readTaken(NodeIndex node, const Bound& bound)
    {
        const DocumentCategory& category = fields_.category(bound);
        if (places_.empty()) {
            places_.assign(fields_.categories().size(), SIZE_MAX);
        }
        std::size_t& place = places_[bound.category];
        if (place == SIZE_MAX) {
            place = placeOf(category.category.pKey, node);
            noteDocument(category.document);
        }
        if (document_[node].isContainer()) {
            noteReplaced(node, bound, category);
        } else if (bound.pField != nullptr && bound.open == 0 && bound.pField->fields.empty()) {
            ++layer_.categories[place].values;
            ++layer_.values;
        }
    }

    /// Several parts of a document may set the same category, or classes of one.
    std::size_t placeOf(const char* pKey, NodeIndex node)
    {
        for (std::size_t i = 0; i < layer_.categories.size(); ++i) {
            if (layer_.categories[i].key == pKey) {
                return i;
            }
        }
        layer_.categories.push_back({pKey, 0, document_.place(beginOf(node)).line});
        return layer_.categories.size() - 1;
    }

    std::size_t beginOf(NodeIndex node) const
    {
        const DocumentNode& value = document_[node];
        return value.key.isEmpty() ? value.value.begin : value.key.begin;
    }

    void noteDocument(QvDatabaseCatalogDocument_t document)
    {
        const char* pName = QvDatabaseCatalog_document(document);
        if (std::find(layer_.documents.begin(), layer_.documents.end(), pName) == layer_.documents.end()) {
            layer_.documents.emplace_back(pName);
        }
    }

    /// A list whose length goes into its counter takes the place of the one before, also where it is shorter.
    void noteReplaced(NodeIndex node, const Bound& bound, const DocumentCategory& category)
    {
        if (category.document == QvDatabaseCatalogDocument_Calibration) {
            if (!isCalibration_ && hasCalibration(session_)) {
                layer_.replaced.emplace_back("the whole calibration");
            }
            isCalibration_ = true;
            return;
        }
        if (bound.pField == nullptr || bound.open == 0 || bound.pField->field.depth != 0 ||
            bound.pField->field.counterWidth == 0 || bound.open != bound.pField->field.rank ||
            bound.pField->field.count == QvDatabaseCatalogCount_Counted) {
            return;
        }
        std::size_t before = 0;
        const QvDatabaseCatalogField_t& field = bound.pField->field;
        std::memcpy(&before, static_cast<const char*>(session_.record(category.category.pKey)) + field.counterOffset,
                    std::min(field.counterWidth, sizeof before));
        if (before != 0) {
            const std::size_t now = document_[node].count;
            layer_.replaced.push_back(fields_.path(node, tree_) + " (" + plural(now, "item", "items") + " now, " +
                                      std::to_string(before) + " before)");
        }
    }

    void readVersion()
    {
        if (document_.nodes().empty()) {
            return;
        }
        const NodeIndex version = document_.member(0, "version");
        if (document_.form() == Form::Json && version != kNoNode) {
            for (NodeIndex node = document_[version].first; node != kNoNode; node = document_[node].next) {
                const Bound& bound = fields_[node];
                const bool isDate = bound.fate == Fate::Written;
                if (bound.pField != nullptr && bound.pField->field.element == QvDatabaseCatalogElement_Text) {
                    (isDate ? layer_.date : layer_.version) = document_.string(node);
                }
            }
        }
    }

    const Document& document_;
    const DocumentFields& fields_;
    const Session& session_;
    Layer& layer_;
    PathTree tree_;
    std::vector<std::size_t> places_; ///< of the document's categories, in the layer
    bool isCalibration_ = false;
};

/// Everything in an image is taken. What can't be in one that a save wrote speaks against it.
void readImage(const Input& input, const Session& session, Layer& layer)
{
    const std::string_view bytes = input.bytes.view();
    layer.documents.emplace_back(QvDatabaseCatalog_document(QvDatabaseCatalogDocument_Image));
    for (const QvDatabaseCatalogCategory_t& category : categoriesOf(QvDatabaseCatalogDocument_Image)) {
        layer.categories.push_back({category.pKey, 0, 0});
        if (std::string_view(category.pKey) == "MISC" && bytes.size() >= category.imageOffset + category.recordSize) {
            QvDatabaseMisc_t misc;
            std::memcpy(&misc, bytes.data() + category.imageOffset, sizeof misc);
            layer.version.assign(misc.versionNumber, strnlen(misc.versionNumber, sizeof misc.versionNumber));
            layer.date.assign(misc.exportDate, strnlen(misc.exportDate, sizeof misc.exportDate));
        }
    }
    if (hasCalibration(session)) {
        layer.replaced.emplace_back("all that an image holds");
    }
    std::vector<bool> isDisabled(faultKinds().size(), true);
    for (const Fault fault : {Fault::ImageSize, Fault::BoolByte}) {
        isDisabled[static_cast<std::size_t>(fault)] = false;
    }
    Findings findings(isDisabled);
    checkImage(bytes, PathTree(), findings);
    const std::size_t faults = findings.count(Severity::Error) + findings.count(Severity::Warning);
    if (faults != 0) {
        layer.doubt = "may be no image: qvdb check tells " + plural(faults, "place", "places") +
                      " that no save writes, in size or bools";
    }
}

} // namespace

Layer layerOf(const Input& input, const Session& session)
{
    Layer layer;
    layer.name = input.shown();
    layer.form = input.form;
    if (input.form == Form::Image) {
        readImage(input, session, layer);
    } else if (input.form != Form::CalibrationText) {
        Document document;
        if (document.read(input.bytes.view(), input.form) && document.faults().empty()) {
            const DocumentFields fields(document);
            LayerReader(document, fields, session, layer).read();
        }
        if (layer.categories.empty()) {
            layer.doubt = "sets nothing; qvdb check may tell why";
        }
    }
    return layer;
}

Layer layerOf(const Input& input, const std::vector<std::string>& paths)
{
    Layer layer;
    layer.name = input.shown();
    layer.form = input.form;
    layer.documents.emplace_back(formName(input.form));
    for (const std::string& path : paths) {
        layer.categories.push_back({path, 0, 0});
    }
    return layer;
}

void sayLayer(const Layer& layer, bool isVerbose)
{
    std::string documents;
    for (const std::string& document : layer.documents) {
        documents += (documents.empty() ? "" : ", ") + document;
    }
    std::string line = "loaded " + layer.name;
    if (layer.form == Form::CalibrationText) {
        for (std::size_t i = 0; i < layer.categories.size(); ++i) {
            line += (i == 0 ? ": sets " : ", ") + layer.categories[i].key;
        }
    } else if (!layer.categories.empty()) {
        line += " (" + documents + "): sets " +
                (layer.values == 0 ? "" : plural(layer.values, "value", "values") + " in ") +
                plural(layer.categories.size(), "category", "categories");
    }
    say(line);
    if (isVerbose && layer.form != Form::CalibrationText) {
        for (const LayerCategory& category : layer.categories) {
            say(layer.name + (category.line == 0 ? "" : ':' + std::to_string(category.line)) + ": sets " +
                (category.values == 0 ? "" : plural(category.values, "value", "values") + " of ") + category.key);
        }
    }
    for (const std::string& replaced : layer.replaced) {
        say(layer.name + " replaces " + replaced);
    }
    if (!layer.doubt.empty()) {
        warn(layer.name + ' ' + layer.doubt);
    }
}

} // namespace qv::tools
