#include "functions/games/hangmanform.h"

#include "functions/games/hangman.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/labels.h"
#include "shell/kit/messages.h"
#include "shell/kit/tablefilepart.h"
#include "shell/kit/textedit.h"
#include "shell/kit/toolbars.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QVBoxLayout>

namespace quillfen {
namespace {

/// Hangman's settings. They are not saved without a hint character.
class HangmanPart : public TableFilePart
{
public:
    using TableFilePart::TableFilePart;

    bool maySave() override
    {
        if (!widget()->findChild<QLineEdit*>("txtTextBox(0)")->text().isEmpty())
            return true;
        notify(widget(), "Hidden Character required", "A Hint Character is required", QMessageBox::Warning);
        return false;
    }
};

/// The pictures of the gallows: a slider chooses the stage, which shows beside it and is edited as a file of
/// its own.
class GallowsPart : public FormPart
{
public:
    explicit GallowsPart(const FormContext& context);

    QWidget* widget() override { return m_widget; }
    void load() override { showStage(); }
    void restore() override {} ///< the pictures have no defaults
    void save() override {}    ///< the text editor saves its file itself

private:
    QWidget* placed();
    void showStage();
    void edit();

    FormContext m_context;
    QToolBar* m_toolbar;
    QSlider* m_stage;
    QPlainTextEdit* m_picture;
    QWidget* m_widget;
};

GallowsPart::GallowsPart(const FormContext& context)
    : m_context(context),
      m_toolbar(new QToolBar),
      m_stage(new QSlider(Qt::Horizontal)),
      m_picture(new QPlainTextEdit),
      m_widget(placed())
{
    int index = 0;
    AddEditButton(*m_toolbar, index);
    button(*m_toolbar, "EDIT")->setToolTip("Edit ascii");
    connectButton(*m_toolbar, "EDIT", this, &GallowsPart::edit);
    connect(m_stage, &QSlider::valueChanged, this, &GallowsPart::showStage);
}

QWidget* GallowsPart::placed()
{
    m_toolbar->setObjectName("tlbAscii");
    m_toolbar->setIconSize({16, 16});
    m_stage->setObjectName("sldAscii");
    m_stage->setAccessibleName("Ascii");
    m_stage->setRange(0, lastGallowsStage);
    m_stage->setPageStep(1);
    m_stage->setTickPosition(QSlider::TicksBelow);
    m_picture->setObjectName("txtPreview");
    m_picture->setAccessibleName("Picture of this stage");
    m_picture->setReadOnly(true);
    m_picture->setTabChangesFocus(true);
    m_picture->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_picture->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto* stage = new QHBoxLayout;
    stage->addWidget(labelFor("Ascii", m_stage));
    stage->addWidget(m_stage, 1);
    stage->addWidget(m_toolbar);
    auto* widget = new QWidget;
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addLayout(stage);
    layout->addWidget(m_picture, 1);
    return widget;
}

void GallowsPart::showStage()
{
    m_picture->setPlainText(fromBytes(m_context.files.ReadTextFile(gallowsFile(m_stage->value()))));
}

void GallowsPart::edit()
{
    if (editTextFile(m_widget->window(), m_context.files, gallowsFile(m_stage->value())))
        showStage();
}

} // namespace

std::unique_ptr<FormPart> makeHangmanSettingsPart(const TableFile& file, const FormContext& context)
{
    return std::make_unique<HangmanPart>(file, context);
}

std::unique_ptr<FormPart> makeGallowsPart(const FormContext& context)
{
    return std::make_unique<GallowsPart>(context);
}

} // namespace quillfen
