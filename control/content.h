// The field's text and value: what hosts put and get, the default value, the return scheme, and what can be undone.
#pragma once

#include "control/context.h"
#include "control/history.h"
#include "engine/field/date_check.h"
#include "engine/field/field_value.h"

#include <memory>
#include <string>
#include <string_view>

namespace vela::control {

// Who writes a text. The live re-format runs for what a person or a host writes. The history records a person's edits,
// a live re-format with the edit before it, and is cleared when a host, loading, entry or exit writes.
enum class Writer { person, host, life, keys, reformat, history };

class Content {
public:
    explicit Content(Context& context) : context_(context) {}

    [[nodiscard]] std::u16string text() const;
    void writeText(std::u16string_view text, Writer writer); // as it is; raises 91 when the control was destroyed
    void putText(std::u16string_view text, Writer writer);   // what a put of Text does
    [[nodiscard]] Writer writer() const noexcept { return writer_; } // of the text being written
    [[nodiscard]] engine::Value value();
    void putValue(const engine::Value& value);
    void putValorPadrao(std::u16string_view value);
    void putEsquemaRetornoAtual(eEsquemasRetorno value);
    void adoptScheme();
    void prepareText(); // the empty display of the loaded type
    void applyLoadedDefault();
    void correctText(std::u16string_view text); // what the date check puts right, its failure logged
    [[nodiscard]] engine::DateCheckSettings checkSettings() const;

    [[nodiscard]] History& history();
    [[nodiscard]] History* keptHistory() noexcept { return history_.get(); } // null before the first edit
    void forgetHistory() noexcept { history_.reset(); }

private:
    void applyFormula();
    [[nodiscard]] engine::FieldSettings fieldSettings() const;

    Context& context_;
    std::u16string formatoRetornoData_; // of the scheme in force
    std::u16string delimitador_;        // the same
    std::unique_ptr<History> history_;  // from the first edit of a person on
    Writer writer_ = Writer::person;
};

} // namespace vela::control
