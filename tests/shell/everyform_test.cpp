#include "shell/window/navigatortable.h"
#include "support/formtest.h"

#include <QAbstractButton>

namespace quillfen {
namespace {

/// The keys of the forms that are built.
std::vector<std::string> builtKeys()
{
    std::vector<std::string> keys;
    const FormCatalogue forms = formCatalogue();
    for (const QString& key : formKeys()) {
        if (std::any_of(forms.begin(), forms.end(),
                        [&key](const FormMaker& maker) { return maker.name == formName(key); }))
            keys.push_back(key.toStdString());
    }
    return keys;
}

class EveryForm : public test::FormTest, public testing::WithParamInterface<std::string>
{
protected:
    EditorForm& openForm() { return open(GetParam().c_str()); }
};

TEST_P(EveryForm, OpensWithinTheWindow)
{
    window().resize(1180, 780);
    const QSize size = openForm().parentWidget()->size();
    const QSize room = find<QMdiArea>(window(), QString()).viewport()->size();
    EXPECT_LE(size.width(), room.width());
    EXPECT_LE(size.height(), room.height());
}

TEST_P(EveryForm, CutsNoTextOfALabelOrButton)
{
    auto& form = openForm();
    const auto check = [](const QWidget& widget, const QString& text) {
        if (widget.isVisible()) {
            EXPECT_GE(widget.width(), widget.sizeHint().width()) << text.toStdString();
        }
    };
    for (const auto* label : form.findChildren<QLabel*>())
        check(*label, label->text());
    for (const auto* each : form.findChildren<QAbstractButton*>())
        check(*each, each->text());
}

INSTANTIATE_TEST_SUITE_P(Forms, EveryForm, testing::ValuesIn(builtKeys()), [](const auto& test) {
    std::string name = test.param;
    std::erase(name, '~');
    return name;
});

} // namespace
} // namespace quillfen
