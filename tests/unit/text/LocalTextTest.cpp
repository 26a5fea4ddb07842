#include "text/LocalText.h"
#include "text/StringTable.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace QmChart6 {
namespace {

constexpr std::int32_t lastKey = 121;
constexpr std::int16_t lastLanguage = 3;

/// Sets the process' language and puts English back afterwards.
class LocalTextTest : public testing::Test {
protected:
    void TearDown() override { SetLanguageCode(0); }
    static QString TextIn(std::int16_t language, std::int32_t key) {
        SetLanguageCode(language);
        return LocalText(key);
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
        for (std::int16_t language = 0; language <= lastLanguage; ++language)
            for (std::int32_t key = 0; key <= lastKey; ++key) {
                SCOPED_TRACE(testing::Message() << "key " << key << ", language " << language);
                check(TextIn(language, key));
            }
    }
};

TEST_F(LocalTextTest, TheFirstLanguageIsEnglish) {
    EXPECT_EQ(LanguageCode(), 0);
    EXPECT_EQ(LocalText(0), u"Chart Viewer");
}

TEST_F(LocalTextTest, KeyZeroIsTranslatedInPortugueseOnly) {
    ExpectRow(0, QStringLiteral("Chart Viewer"), QStringLiteral("Viewer do Gráfico"),
              QStringLiteral("Chart Viewer"), QStringLiteral("Chart Viewer"));
}

TEST_F(LocalTextTest, AxisTitleProperties) {
    ExpectRow(1, QStringLiteral("Axis Title Properties"), QStringLiteral("Propriedades do Título do Eixo"),
              QStringLiteral("Propiedades del Título del Eje"), QStringLiteral("Proprietà Titolo Asse"));
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
    for (std::int16_t language = 0; language <= lastLanguage; ++language)
        EXPECT_EQ(TextIn(language, 113).count(QLatin1Char('_')), 1) << "language " << language;
}

TEST_F(LocalTextTest, KeysOfTheSameEnglishWordAreKeptApart) {
    for (const auto key : {56, 66, 75}) EXPECT_EQ(LocalText(key), u"None");
    for (const auto key : {71, 99}) EXPECT_EQ(LocalText(key), u"Center");
    for (const auto key : {17, 41}) EXPECT_EQ(LocalText(key), u"100%");
    // A line is feminine in Portuguese, a label masculine.
    EXPECT_EQ(TextIn(1, 56), u"Nenhuma");
    EXPECT_EQ(TextIn(1, 66), u"Nenhum");
}

TEST_F(LocalTextTest, LanguageFourHasNoTextForAnyKey) {
    SetLanguageCode(4);
    for (std::int32_t key = 0; key <= lastKey; ++key) EXPECT_RAISES(326, LocalText(key));
}

TEST_F(LocalTextTest, LanguageTenGivesTheEnglishTextOfTheNextKey) {
    for (std::int32_t key = 0; key < lastKey; ++key) {
        const auto next = TextIn(0, key + 1);
        EXPECT_EQ(TextIn(10, key), next) << "key " << key;
    }
    SetLanguageCode(10);
    EXPECT_RAISES(326, LocalText(lastKey));
}

TEST_F(LocalTextTest, LanguageMinusTenGivesTheEnglishTextOfTheKeyBefore) {
    EXPECT_EQ(TextIn(-10, 1), u"Chart Viewer");
    EXPECT_RAISES(326, LocalText(0));
}

TEST_F(LocalTextTest, AnyLanguageCodeIsKeptAsItIsGiven) {
    for (const auto code : std::array<std::int16_t, 4>{4, -1, 32767, -32768}) {
        SetLanguageCode(code);
        EXPECT_EQ(LanguageCode(), code);
    }
}

TEST_F(LocalTextTest, KeysOutsideTheTableAreNotFound) {
    EXPECT_RAISES(326, LocalText(-1));
    EXPECT_RAISES(326, LocalText(lastKey + 1));
    EXPECT_RAISES(326, LocalText(-3000));
}

TEST_F(LocalTextTest, TheErrorNamesTheId) {
    SetLanguageCode(7);
    try {
        LocalText(12);
        ADD_FAILURE() << "raised nothing";
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.Description().contains(QStringLiteral("30127"))) << error.what();
    }
}

TEST_F(LocalTextTest, AnIdThatDoesNotFit32BitsOverflows) {
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    constexpr auto least = std::numeric_limits<std::int32_t>::min();
    EXPECT_RAISES(6, LocalText(most));
    EXPECT_RAISES(6, LocalText(least));
    EXPECT_RAISES(6, LocalText(most / 10 + 1)); // the product
    EXPECT_RAISES(6, LocalText(most / 10));     // the product fits, the sum does not
    // 2147480000 + 30000 overflows before the language could bring it back.
    SetLanguageCode(-32768);
    EXPECT_RAISES(6, LocalText(214748000));
    SetLanguageCode(32767);
    EXPECT_RAISES(6, LocalText(214745000)); // 2147480000 fits, with the language it does not
}

TEST_F(LocalTextTest, ThereAre488TextsAndNoneIsEmpty) {
    auto texts = 0;
    for (std::int32_t id = 29000; id < 33000; ++id)
        if (const auto text = StringOfId(id)) {
            ++texts;
            EXPECT_FALSE(text->empty()) << "id " << id;
        }
    EXPECT_EQ(texts, 488);
}

TEST_F(LocalTextTest, NoIdEndsInADigitFromFourToNine) {
    for (std::int32_t id = 30000; id < 31220; ++id) EXPECT_EQ(StringOfId(id).has_value(), id % 10 < 4) << id;
}

TEST_F(LocalTextTest, TheIdsRunFrom30000To31213) {
    EXPECT_FALSE(StringOfId(29999).has_value());
    EXPECT_EQ(StringOfId(30000), u"Chart Viewer");
    EXPECT_EQ(StringOfId(31210), u"Snapshot Saved");
    EXPECT_TRUE(StringOfId(31213).has_value());
    EXPECT_FALSE(StringOfId(31220).has_value());
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
