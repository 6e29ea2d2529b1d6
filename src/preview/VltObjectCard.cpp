#include "preview/VltObjectCard.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStyle>
#include <QTextBrowser>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Gap = 8; ///< to the edges of the view
// in heights of text:
constexpr int CardWidth = 22;
constexpr int NarrowView = 34;
constexpr int NorthArrowRoom = 4;
constexpr int LeastHeight = 6;

/// Shows only what is in the text.
class Page : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int /*type*/, const QUrl & /*name*/) override { return {}; }
};

} // namespace

VltObjectCard::VltObjectCard(QWidget *view)
    : QFrame(view)
    , m_pwTbPage(new Page(this))
    , m_pwTbClose(new QToolButton(this))
{
    setObjectName(QStringLiteral("m_pwObjectCard"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setAccessibleName(tr("Selected object", "MESS_SELECTED_OBJECT"));
    QToolButton *close = m_pwTbClose;
    close->setObjectName(QStringLiteral("m_pwTbCloseCard"));
    close->setText(QStringLiteral("\u2715"));
    close->setAutoRaise(true);
    close->setAccessibleName(tr("Close the card", "MESS_CLOSE_CARD"));
    close->setToolTip(tr("Close the card (Esc)", "MESS_TIP_CLOSE_CARD"));
    connect(close, &QToolButton::clicked, this, &QWidget::close);
    m_pwTbPage->setObjectName(QStringLiteral("m_pwTbObjectPage"));
    m_pwTbPage->setOpenLinks(false);
    m_pwTbPage->setFrameShape(QFrame::NoFrame);
    m_pwTbPage->setTabChangesFocus(true);
    m_pwTbPage->document()->setDefaultStyleSheet(QStringLiteral(
        "h1 { font-size: large; margin: 2px 0 } td { padding-right: 10px; white-space: nowrap }"));
    m_pwTbPage->setWordWrapMode(QTextOption::WordWrap);
    m_pwTbPage->setAccessibleName(tr("Information about the object", "MESS_OBJECT_INFORMATION"));

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pwTbPage);
    layout->addWidget(close, 0, Qt::AlignTop);
    hide();
}

void VltObjectCard::showPage(QString html, const QPointF &object)
{
    m_object = object;
    static const QRegularExpression styles(QStringLiteral("<style.*?</style>|\\sstyle=\"[^\"]*\""),
                                           QRegularExpression::CaseInsensitiveOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    m_pwTbPage->setHtml(html.remove(styles));
    m_pwTbPage->setAccessibleDescription(m_pwTbPage->toPlainText());
    m_hasPage = true;
    place();
    raise();
}

void VltObjectCard::dismiss()
{
    m_hasPage = false;
    hide();
}

void VltObjectCard::place()
{
    const QSize view = parentWidget()->size();
    const int unit = fontMetrics().height();
    // beside the object in a wide view, above or below it in a narrow one
    const bool isNarrow = view.width() < NarrowView * unit;
    const int mostWidth = isNarrow ? view.width() - 2 * Gap : CardWidth * unit;
    const int mostHeight = isNarrow ? view.height() * 2 / 5 : view.height() * 3 / 5;
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int aside = 2 * frameWidth() + m_pwTbClose->sizeHint().width() + scrollBar;
    QTextDocument &page = *m_pwTbPage->document();
    page.setTextWidth(mostWidth - aside);
    const bool isCut = page.idealWidth() > mostWidth - aside;
    const int room = static_cast<int>(std::ceil(page.idealWidth() + 2 * page.documentMargin()));
    const int width = isCut ? mostWidth : std::min(room + aside, mostWidth);
    const int height = static_cast<int>(std::ceil(page.size().height())) + 2 * frameWidth();
    resize(width, std::min(height + (isCut ? scrollBar : 0), mostHeight));
    const bool isLeft = m_object.x() < view.width() / 2.0;
    const bool isHigh = m_object.y() < view.height() / 2.0;
    if (isNarrow)
        move(Gap, isHigh ? view.height() - this->height() - Gap : Gap);
    else if (isLeft) // below the north arrow
        move(view.width() - width - Gap, NorthArrowRoom * unit);
    else
        move(Gap, Gap);
    setVisible(m_hasPage && mostHeight >= LeastHeight * unit);
}

void VltObjectCard::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QFrame::keyPressEvent(event);
}

void VltObjectCard::closeEvent(QCloseEvent *event)
{
    QFrame::closeEvent(event);
    m_hasPage = false;
    Q_EMIT closed();
}
