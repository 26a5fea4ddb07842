#include "text/words/Words.h"

namespace QmChart6 {

namespace {

// clang-format off
constexpr TextRows Texts = [] {
    using enum TextKey;
    return TextRows{{
        {ChartViewer, u"Chart Viewer"},
        {AxisTitleProperties, u"Proprietà Titolo Asse"},
        {ChartTitleProperties, u"Proprietà Titolo Grafico"},
        {LegendTextProperties, u"Proprietà Testo Legenda"},
        {DataLabelsProperties, u"Proprietà Etichette Dati"},
        {AxisLabelsProperties, u"Proprietà Etichette Asse"},
        {FootnoteProperties, u"Proprietà Nota a Piè di Pagina"},
        {SeriesProperties, u"Proprietà Serie"},
        {GraphProperties, u"Proprietà Grafico"},
        {ControlBar, u"Barra di Controllo"},
        {SendTo, u"Invia a"},
        {Printer, u"Stampante"},
        {BmpFile, u"File .BMP"},
        {Clipboard, u"Appunti"},
        {SaveConfiguration, u"Salva Configurazione"},
        {In3D, u"3D"},
        {Stack, u"Impila"},
        {FullStack, u"100%"},
        {Legend, u"Legenda"},
        {Flip, u"Inverti"},
        {Bar, u"Barra"},
        {Line, u"Linea"},
        {Area, u"Area"},
        {Step, u"Gradino"},
        {Combination, u"Combinazione"},
        {Pie, u"Torta"},
        {XYScatter, u"XY (Dispersione)"},
        {BarColumn, u"Barra (Colonna)"},
        {LineTape, u"Linea (Nastro)"},
        {General, u"Generale"},
        {Axes, u"Assi"},
        {Grid, u"Griglia"},
        {Labels, u"Etichette"},
        {ChartType, u"Tipo di Grafico"},
        {Types2D, u"Tipi 2D"},
        {Types3D, u"Tipi 3D"},
        {ChartOptions, u"Opzioni Grafico"},
        {ShowLegend, u"Mostra Legenda"},
        {ShowMarkers, u"Mostra Indicatori"},
        {ShowLines, u"Mostra Linee"},
        {StackSeries, u"Impila Serie"},
        {FullStackSeries, u"100%"},
        {SeriesInRows, u"Serie in Righe (Inverti)"},
        {Ok, u"OK"},
        {Cancel, u"Annulla"},
        {Apply, u"Applica"},
        {ShowAxes, u"Mostra Assi"},
        {ShowAxisTitles, u"Mostra Titoli Assi"},
        {XAxis, u"Asse X"},
        {PrimaryYAxis, u"Asse Y Primario"},
        {SecondaryYAxis, u"Asse Y Secondario"},
        {ZAxis, u"Asse Z"},
        {XGridLines, u"Linee Griglia X"},
        {PrimaryYGridLines, u"Linee Griglia Y Primario"},
        {SecondaryYGridLines, u"Linee Griglia Y Secondario"},
        {ZGridLines, u"Linee Griglia Z"},
        {NoLine, u"Nessuna"},
        {SolidLine, u"Continua"},
        {DashedLine, u"Tratteggiata"},
        {DottedLine, u"Punteggiata"},
        {DataLabels, u"Etichette Dati"},
        {LabelLines, u"Linee Etichette"},
        {SeriesName, u"Nome Serie"},
        {Value, u"Valore"},
        {Percentage, u"Percentuale"},
        {PieLabelPosition, u"Posizione Etichetta Torta"},
        {NoLabel, u"Nessuna"},
        {Inside, u"Dentro"},
        {Outside, u"Fuori"},
        {Above, u"Sopra"},
        {Below, u"Sotto"},
        {Center, u"Centro"},
        {Left, u"Sinistra"},
        {Right, u"Destra"},
        {Base, u"Base"},
        {NoLabelLine, u"Nessuna"},
        {StraightLabelLine, u"Retta"},
        {BentLabelLine, u"Spezzata"},
        {TextProperties, u"Proprietà Testo"},
        {Text, u"Testo"},
        {Font, u"Carattere"},
        {Orientation, u"Orientamento"},
        {Alignment, u"Allineamento"},
        {Horizontal, u"Orizzontale"},
        {Vertical, u"Verticale"},
        {Top, u"In Alto"},
        {Bottom, u"In Basso"},
        {XY, u"XY"},
        {Style, u"Stile"},
        {Name, u"Nome"},
        {Type, u"Tipo"},
        {Color, u"Colore"},
        {Statistics, u"Statistiche"},
        {Minimum, u"Minimo"},
        {Maximum, u"Massimo"},
        {StandardDeviation, u"Deviazione Standard"},
        {Mean, u"Media"},
        {Regression, u"Regressione"},
        {SaveCurrentConfiguration, u"Salvare le modifiche apportate?"},
        {LabelCenter, u"Centro"},
        {LoadConfiguration, u"Carica Configurazione"},
        {SaveConfigurationAs, u"Salva Configurazione con Nome"},
        {Print, u"Stampa"},
        {Design, u"Aspetto"},
        {BackgroundColor, u"Colore Sfondo"},
        {Projection3D, u"Proiezione 3D"},
        {Perspective, u"Prospettiva"},
        {Oblique, u"Obliqua"},
        {Orthogonal, u"Ortogonale"},
        {Delete, u"Elimina"},
        {AvailableConfigurations, u"Configurazioni Disponibili"},
        {MakeDefaultConfiguration, u"Imposta come Configurazione Predefinita"},
        {LoadTitles, u"Carica Titoli"},
        {ConfigurationExists, u"Configurazione _ Esiste Già. Sostituire?)"},
        {DeleteConfiguration, u"Elimina Configurazione"},
        {ChartName, u"Nome Grafico"},
        {ConfigurationName, u"Nome Configurazione"},
        {Status, u"Stato"},
        {ConfigurationLoaded, u"Configurazione Caricata"},
        {ConfigurationSaved, u"Configurazione Salvata"},
        {PrintingInProgress, u"Stampa in Corso"},
        {SnapshotSaved, u"Immagine Salvata"},
    }};
}();
// clang-format on
static_assert(IsWhole(Texts));

// clang-format off
constexpr HintRows Hints = [] {
    using enum Hint;
    return HintRows{{
        {NothingChosen, u"Nessuna selezione: OK carica l'aspetto predefinito"},
        {NoFill, u"Nessun riempimento"},
        {SolidFill, u"Tinta unita"},
        {Dots, u"Punti, %1%"},
        {BoldHorizontalLines, u"Linee orizzontali spesse"},
        {BoldVerticalLines, u"Linee verticali spesse"},
        {BoldFallingLines, u"Linee discendenti spesse"},
        {BoldRisingLines, u"Linee ascendenti spesse"},
        {Checks, u"Scacchi"},
        {Weave, u"Intreccio"},
        {HorizontalLines, u"Linee orizzontali"},
        {VerticalLines, u"Linee verticali"},
        {FallingLines, u"Linee discendenti"},
        {RisingLines, u"Linee ascendenti"},
        {Squares, u"Quadretti"},
        {Trellis, u"Traliccio"},
        {InvertedTrellis, u"Traliccio invertito"},
        {HorizontalHatch, u"Tratteggio orizzontale"},
        {VerticalHatch, u"Tratteggio verticale"},
        {FallingHatch, u"Tratteggio discendente"},
        {RisingHatch, u"Tratteggio ascendente"},
        {CrossHatch, u"Tratteggio incrociato"},
        {DiagonalCrossHatch, u"Tratteggio incrociato diagonale"},
        {FontNotInstalled, u"%1 non è installato; al suo posto si disegna %2"},
        {PictureForm, u"Formato"},
        {NoSuchPictureForm, u"\"%1\" non è un'immagine che si possa salvare; il nome termina in %2"},
        {PrintPreview, u"Anteprima di Stampa"},
        {KeysAndMouse, u"Tasti e Mouse"},
        {ThisCard, u"Questa scheda"},
        {CopyChart, u"Copiare il grafico"},
        {SavePicture, u"Salvare un'immagine"},
        {PrintTheChart, u"Stampare il grafico"},
        {TakeBack, u"Annullare l'ultima modifica"},
        {DoAgain, u"Ripetere la modifica"},
        {WalkParts, u"Selezionare la parte successiva o precedente"},
        {WalkPoints, u"Scorrere i punti e le serie"},
        {EndPoints, u"Primo o ultimo punto"},
        {EditPart, u"Proprietà della parte selezionata"},
        {PartMenu, u"Menu della parte"},
        {SelectNothing, u"Non selezionare nulla"},
        {SelectPart, u"Selezionare una parte"},
        {TurnView, u"Ruotare un grafico 3D"},
        {ArrowKeys, u"Tasti freccia"},
        {Click, u"Clic"},
        {DoubleClick, u"Doppio clic"},
        {RightClick, u"Clic con il tasto destro"},
        {CtrlDrag, u"Ctrl+trascinamento"},
        {MovePart, u"Spostare il titolo, la nota a piè di pagina o la legenda"},
        {MoveByAPoint, u"Spostarlo di un punto"},
        {OwnPlace, u"Di nuovo al suo posto"},
        {Dragging, u"Trascinamento"},
        {CtrlArrowKeys, u"Ctrl+frecce"},
    }};
}();
// clang-format on
static_assert(IsWhole(Hints));

constexpr Remarks Said{
    u"%1 etichette dei dati non hanno spazio",
    u"il grafico è troppo piccolo per le etichette degli assi",
    u"il grafico è troppo piccolo per l'area del tracciato",
    u"la legenda non ha spazio per %1 di %2 serie",
    u"%1 di %2 torte non hanno spazio",
    u"non c'è alcun valore da mostrare",
    u"%1 valore negativo non ha uno spicchio",
    u"%1 valori negativi non hanno uno spicchio",
    u"%1 zero non ha uno spicchio",
    u"%1 zeri non hanno uno spicchio",
    u"%1 valore non è maggiore di zero e non ha posto su un asse logaritmico",
    u"%1 valori non sono maggiori di zero e non hanno posto su un asse logaritmico",
    u"tranne %1 proprietà per le quali questo archivio non ha posto",
};
static_assert(IsWhole(Said));

ChartVocabulary ChartWords() {
    ChartVocabulary words;
    words.chart = QStringLiteral("Grafico");
    words.kinds = {
        QStringLiteral("Grafico a barre 3D"),   QStringLiteral("Grafico a barre"),
        QStringLiteral("Grafico a linee 3D"),   QStringLiteral("Grafico a linee"),
        QStringLiteral("Grafico ad aree 3D"),   QStringLiteral("Grafico ad aree"),
        QStringLiteral("Grafico a gradini 3D"), QStringLiteral("Grafico a gradini"),
        QStringLiteral("Grafico combinato 3D"), QStringLiteral("Grafico combinato"),
        QStringLiteral("Grafico a torta"),      QStringLiteral("Grafico XY"),
    };
    words.series = {QStringLiteral("%1 serie"), QStringLiteral("%1 serie")};
    words.categories = {QStringLiteral("%1 categoria"), QStringLiteral("%1 categorie")};
    words.points = {QStringLiteral("%1 punto"), QStringLiteral("%1 punti")};
    words.contents = QStringLiteral("%1 con %2 e %3");
    words.range = QStringLiteral("valori da %1 a %2");
    words.withoutValues = QStringLiteral("senza valori");
    words.noValue = QStringLiteral("nessun valore");
    words.seriesOfNumber = QStringLiteral("Serie %1");
    return words;
}

} // namespace

extern const Words ItalianWords{Texts, Hints, Said, ChartWords};

} // namespace QmChart6
