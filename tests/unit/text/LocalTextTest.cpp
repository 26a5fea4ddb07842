#include "text/LocalText.h"
#include "text/Languages.h"
#include "text/StringTable.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace QmChart6 {
namespace {

constexpr std::int32_t lastKey = 121;

std::int16_t LanguageCount() {
    return static_cast<std::int16_t>(Languages().size());
}

/// Sets the process' language and puts English back afterwards.
class LocalTextTest : public testing::Test {
protected:
    void TearDown() override { SetLanguageCode(0); }
    static QString TextIn(std::int16_t language, std::int32_t key) {
        SetLanguageCode(language);
        return LocalText(TextKey{key});
    }
    static void ExpectRow(std::int32_t key, const QString& english, const QString& portuguese,
                          const QString& spanish, const QString& italian) {
        EXPECT_EQ(TextIn(0, key), english);
        EXPECT_EQ(TextIn(1, key), portuguese);
        EXPECT_EQ(TextIn(2, key), spanish);
        EXPECT_EQ(TextIn(3, key), italian);
    }
    /// Calls `check` with every text of the table.
    template<class Check>
    static void ForEveryText(Check check) {
        for (std::int16_t language = 0; language < LanguageCount(); ++language)
            for (std::int32_t key = 0; key <= lastKey; ++key) {
                SCOPED_TRACE(testing::Message() << "key " << key << ", language " << language);
                check(TextIn(language, key));
            }
    }
};

TEST_F(LocalTextTest, TheFirstLanguageIsEnglish) {
    EXPECT_EQ(LanguageCode(), 0);
    EXPECT_EQ(LocalText(TextKey{0}), u"Chart Viewer");
}

TEST_F(LocalTextTest, KeyZeroIsTranslatedInPortugueseOnly) {
    ExpectRow(0, QStringLiteral("Chart Viewer"), QStringLiteral("Viewer do Gráfico"),
              QStringLiteral("Chart Viewer"), QStringLiteral("Chart Viewer"));
}

TEST_F(LocalTextTest, AxisTitleProperties) {
    ExpectRow(1, QStringLiteral("Axis Title Properties"), QStringLiteral("Propriedades do Título do Eixo"),
              QStringLiteral("Propiedades del Título del Eje"), QStringLiteral("Proprietà Titolo Asse"));
}

TEST_F(LocalTextTest, AChartIsCalledByOneWordInSpanish) {
    const Words& spanish = *LanguageOrEnglish(2).words;
    QStringList all;
    for (const TextRow& row : spanish.texts) all.append(QString::fromUtf16(row.text.data()));
    for (const HintRow& row : spanish.hints) all.append(QString::fromUtf16(row.text.data()));
    for (const std::u16string_view remark : spanish.remarks) all.append(QString::fromUtf16(remark.data()));
    const ChartVocabulary words = spanish.chart();
    all.append(words.chart);
    for (const QString& kind : words.kinds) all.append(kind);
    for (const QString& text : all)
        EXPECT_FALSE(text.contains(u"gráfico", Qt::CaseInsensitive)) << text.toStdString();
}

TEST_F(LocalTextTest, AWordStandsSmallBetweenOthers) {
    ExpectRow(111, QStringLiteral("Make Default Configuration"),
              QStringLiteral("Definir como Configuração Padrão"),
              QStringLiteral("Establecer como Configuración Predeterminada"),
              QStringLiteral("Imposta come Configurazione Predefinita"));
    ExpectRow(101, QStringLiteral("Save Configuration As"), QStringLiteral("Salvar Configuração como"),
              QStringLiteral("Guardar Configuración como"), QStringLiteral("Salva Configurazione con Nome"));
    EXPECT_EQ(TextIn(3, 67), u"Dentro");
    EXPECT_EQ(TextIn(3, 68), u"Fuori");
}

TEST_F(LocalTextTest, GraphProperties) {
    ExpectRow(8, QStringLiteral("Graph Properties"), QStringLiteral("Propriedades do Gráfico"),
              QStringLiteral("Propiedades de la Gráfica"), QStringLiteral("Proprietà Grafico"));
}

TEST_F(LocalTextTest, ChartType) {
    ExpectRow(33, QStringLiteral("Chart Type"), QStringLiteral("Tipo de Gráfico"),
              QStringLiteral("Tipo de Gráfica"), QStringLiteral("Tipo di Grafico"));
}

TEST_F(LocalTextTest, TheItalianQuestionBeforeClosingAsksForTheChangesMade) {
    ExpectRow(98, QStringLiteral("Save Current Configuration?"), QStringLiteral("Salvar Configuração atual?"),
              QStringLiteral("¿Guardar Configuración Actual?"),
              QStringLiteral("Salvare le modifiche apportate?"));
}

TEST_F(LocalTextTest, TheOverwriteQuestionKeepsItsStrayBrackets) {
    ExpectRow(113, QStringLiteral("Configuration _ Already Exists. Overwrite?"),
              QStringLiteral("Configuração _ Já Existe. Sobrescrever?)"),
              QStringLiteral("Configuración _ Ya Existente. Sobreescribir?"),
              QStringLiteral("Configurazione _ Esiste Già. Sostituire?)"));
}

TEST_F(LocalTextTest, TheOverwriteQuestionHasOnePlaceForTheNameInEveryLanguage) {
    for (std::int16_t language = 0; language < LanguageCount(); ++language)
        EXPECT_EQ(TextIn(language, 113).count(QLatin1Char('_')), 1) << "language " << language;
}

TEST_F(LocalTextTest, KeysOfTheSameEnglishWordAreKeptApart) {
    for (const auto key : {56, 66, 75}) EXPECT_EQ(LocalText(TextKey{key}), u"None");
    for (const auto key : {71, 99}) EXPECT_EQ(LocalText(TextKey{key}), u"Center");
    for (const auto key : {17, 41}) EXPECT_EQ(LocalText(TextKey{key}), u"100%");
    // A line is feminine in Portuguese, a label masculine.
    EXPECT_EQ(TextIn(1, 56), u"Nenhuma");
    EXPECT_EQ(TextIn(1, 66), u"Nenhum");
}

TEST_F(LocalTextTest, TheLanguageBehindTheLastHasNoTextForAnyKey) {
    SetLanguageCode(LanguageCount());
    for (std::int32_t key = 0; key <= lastKey; ++key) EXPECT_RAISES(326, LocalText(TextKey{key}));
}

TEST_F(LocalTextTest, LanguageTenGivesTheEnglishTextOfTheNextKey) {
    for (std::int32_t key = 0; key < lastKey; ++key) {
        const auto next = TextIn(0, key + 1);
        EXPECT_EQ(TextIn(10, key), next) << "key " << key;
    }
    SetLanguageCode(10);
    EXPECT_RAISES(326, LocalText(TextKey{lastKey}));
}

TEST_F(LocalTextTest, LanguageMinusTenGivesTheEnglishTextOfTheKeyBefore) {
    EXPECT_EQ(TextIn(-10, 1), u"Chart Viewer");
    EXPECT_RAISES(326, LocalText(TextKey{0}));
}

TEST_F(LocalTextTest, AnyLanguageCodeIsKeptAsItIsGiven) {
    for (const auto code : std::array<std::int16_t, 4>{4, -1, 32767, -32768}) {
        SetLanguageCode(code);
        EXPECT_EQ(LanguageCode(), code);
    }
}

TEST_F(LocalTextTest, KeysOutsideTheTableAreNotFound) {
    EXPECT_RAISES(326, LocalText(TextKey{-1}));
    EXPECT_RAISES(326, LocalText(TextKey{lastKey + 1}));
    EXPECT_RAISES(326, LocalText(TextKey{-3000}));
}

TEST_F(LocalTextTest, TheErrorNamesTheId) {
    SetLanguageCode(7);
    try {
        LocalText(TextKey{12});
        ADD_FAILURE() << "raised nothing";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("30127"))) << error.what();
    }
}

TEST_F(LocalTextTest, AnIdThatDoesNotFit32BitsOverflows) {
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    EXPECT_RAISES(6, LocalText(TextKey{most}));
    EXPECT_RAISES(6, LocalText(TextKey{least}));
    EXPECT_RAISES(6, LocalText(TextKey{most / 10 + 1})); // the product
    EXPECT_RAISES(6, LocalText(TextKey{most / 10}));     // the product fits, the sum does not
    // 2147480000 + 30000 overflows before the language could bring it back.
    SetLanguageCode(-32768);
    EXPECT_RAISES(6, LocalText(TextKey{214748000}));
    SetLanguageCode(32767);
    EXPECT_RAISES(6, LocalText(TextKey{214745000})); // 2147480000 fits, with the language it does not
}

TEST_F(LocalTextTest, EveryLanguageHas122TextsAndNoneIsEmpty) {
    auto texts = 0;
    for (std::int32_t id = 29000; id < 33000; ++id)
        if (const auto text = StringOfId(id)) {
            ++texts;
            EXPECT_FALSE(text->empty()) << "id " << id;
        }
    EXPECT_EQ(texts, 122 * LanguageCount());
}

TEST_F(LocalTextTest, NoIdEndsInADigitThatNoLanguageHas) {
    for (std::int32_t id = 30000; id < 31220; ++id)
        EXPECT_EQ(StringOfId(id).has_value(), id % 10 < LanguageCount()) << id;
}

TEST_F(LocalTextTest, TheIdsRunFrom30000To31213) {
    EXPECT_FALSE(StringOfId(29999).has_value());
    EXPECT_EQ(StringOfId(30000), u"Chart Viewer");
    EXPECT_EQ(StringOfId(31210), u"Snapshot Saved");
    EXPECT_TRUE(StringOfId(31213).has_value());
    EXPECT_FALSE(StringOfId(31220).has_value());
}

TEST_F(LocalTextTest, TheCodesOfTheLanguagesStandInTheOrderOfTheirNumbers) {
    const QStringList codes = LanguageCodes();
    EXPECT_EQ(codes.mid(0, 4), (QStringList{"en", "pt", "es", "it"}));
    EXPECT_EQ(codes.size(), LanguageCount());
}

TEST_F(LocalTextTest, AChartIsToldInTheWordsOfItsLanguageAndInEnglishWithoutOne) {
    const auto words = [](std::int16_t number) { return LanguageOrEnglish(number).words->chart().chart; };
    EXPECT_EQ(words(0), u"Chart");
    EXPECT_EQ(words(1), u"Gráfico");
    EXPECT_EQ(words(3), u"Grafico");
    for (const std::int16_t number : std::array<std::int16_t, 3>{-1, 10, 32767})
        EXPECT_EQ(words(number), u"Chart");
}

TEST_F(LocalTextTest, EveryLanguageHasAWordForEveryKindOfChart) {
    const auto english = Languages().front().words->chart();
    for (const LanguageRow& language : Languages()) {
        const auto words = language.words->chart();
        for (const QString& kind : words.kinds) EXPECT_FALSE(kind.isEmpty()) << language.code;
        if (language.number != Language::English) {
            EXPECT_NE(words.noValue, english.noValue) << language.code;
        }
    }
}

TEST_F(LocalTextTest, NoTextHasBlanksAtItsEndsOrAFinalFullStop) {
    ForEveryText([](const QString& text) {
        EXPECT_EQ(text, text.trimmed());
        EXPECT_FALSE(text.endsWith(QLatin1Char('.'))) << text.toStdString();
    });
}

TEST_F(LocalTextTest, EveryTextIsOneLineWithoutDoubleBlanks) {
    ForEveryText([](const QString& text) { EXPECT_EQ(text, text.simplified()); });
}

TEST_F(LocalTextTest, EveryTextBeginsInCapitals) {
    ForEveryText([](const QString& text) {
        for (const auto letter : text)
            if (letter.isLetter()) {
                EXPECT_TRUE(letter.isUpper()) << text.toStdString();
                break;
            }
    });
}

} // namespace
} // namespace QmChart6
