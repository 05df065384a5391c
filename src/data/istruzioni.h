#pragma once

#include <cstdint>
#include <string>

/// Every statement that the program runs on the archive, in the one spelling that all its users share. Values
/// are put in as they are: the only texts are cash-desk letters. `data` is a business date as yyyymmdd,
/// `minuti` minutes since midnight, `servito` -1 or 0.
namespace lumigrafo::istruzioni {

/// Record set: the queue.
inline constexpr const char* kLumigrafo = "Select * from Lumigrafo Order by Sigla, Numero";

/// Record set: the cash desks' counter, a table by its name.
inline constexpr const char* kNumero = "Numero";

/// Execute: the orders that are served in every category leave the queue.
inline constexpr const char* kTogliServiti =
    "Delete Lumigrafo.* from Lumigrafo where  (Lumigrafo.Categoria1 = 0) and (Lumigrafo.Categoria2 = 0) and "
    "(Lumigrafo.Categoria3 = 0) and (Lumigrafo.Categoria4 = 0) and (Lumigrafo.Categoria5 = 0) and "
    "(Lumigrafo.Categoria6 = 0) and (Lumigrafo.Categoria7 = 0) and (Lumigrafo.Categoria8 = 0) and "
    "(Lumigrafo.Categoria9 = 0) and (Lumigrafo.Categoria10 = 0);";

/// Record set: the pieces still to serve, by category.
inline constexpr const char* kSommaPezzi =
    "SELECT Sum(Lumigrafo.Pezzi1) AS SommaDiPezzi1, Sum(Lumigrafo.Pezzi2) AS SommaDiPezzi2, "
    "Sum(Lumigrafo.Pezzi3) AS SommaDiPezzi3, Sum(Lumigrafo.Pezzi4) AS SommaDiPezzi4, "
    "Sum(Lumigrafo.Pezzi5) AS SommaDiPezzi5, Sum(Lumigrafo.Pezzi6) AS SommaDiPezzi6, "
    "Sum(Lumigrafo.Pezzi7) AS SommaDiPezzi7, Sum(Lumigrafo.Pezzi8) AS SommaDiPezzi8, "
    "Sum(Lumigrafo.Pezzi9) AS SommaDiPezzi9, Sum(Lumigrafo.Pezzi10) AS SommaDiPezzi10 FROM Lumigrafo;";

/// Record set: the categories.
inline constexpr const char* kCategorie = "Select * from Categorie Order by Codice";

/// Execute: the lines of an order in one category.
[[nodiscard]] inline std::string dettaglioLumigrafo(int servito, int minuti, const std::string& sigla,
                                                    const std::string& numero, int categoria) {
    return "UPDATE DettaglioLumigrafo SET DettaglioLumigrafo.SERVITO = " + std::to_string(servito) +
           ", DettaglioLumigrafo.MinutiServito = " + std::to_string(minuti) +
           " WHERE (((DettaglioLumigrafo.Sigla)='" + sigla + "') AND ((DettaglioLumigrafo.Numero)=" + numero +
           ") AND ((DettaglioLumigrafo.CATEGORIA)=" + std::to_string(categoria) + "));";
}

/// Execute: the lines of an order, whatever their category.
[[nodiscard]] inline std::string dettaglioLumigrafo(int servito, int minuti, const std::string& sigla,
                                                    const std::string& numero) {
    return "UPDATE DettaglioLumigrafo SET DettaglioLumigrafo.SERVITO = " + std::to_string(servito) +
           ", DettaglioLumigrafo.MinutiServito = " + std::to_string(minuti) +
           " WHERE (((DettaglioLumigrafo.Sigla)='" + sigla + "') AND ((DettaglioLumigrafo.Numero)=" + numero +
           "));";
}

/// Execute: the receipt lines of an order.
[[nodiscard]] inline std::string dettaglio(int servito, int minuti, const std::string& sigla,
                                           const std::string& numero, std::int32_t data) {
    return "UPDATE Dettaglio SET Dettaglio.SERVITO = " + std::to_string(servito) +
           ", Dettaglio.MinutiServito = " + std::to_string(minuti) + " WHERE Dettaglio.Sigla = '" + sigla +
           "' AND Dettaglio.Numero = " + numero + " AND DataCompetenza = " + std::to_string(data);
}

/// Execute: the receipt of an order is served. It has no reverse.
[[nodiscard]] inline std::string scontrinoServito(const std::string& sigla, const std::string& numero,
                                                  std::int32_t data) {
    return "UPDATE ScontriniEmessi SET Servito = True WHERE Sigla='" + sigla + "' AND Numero=" + numero +
           " AND DataCompetenza = " + std::to_string(data);
}

/// Execute: a number leaves the queue, with whatever letter.
[[nodiscard]] inline std::string togliNumero(const std::string& numero) {
    return "Delete * from Lumigrafo Where Numero = " + numero;
}

/// Record set: the receipts of an order, the newest first.
[[nodiscard]] inline std::string scontrini(const std::string& sigla, const std::string& numero,
                                           std::int32_t data) {
    return "Select ID_Scontrino, Servito, Stornato from ScontriniEmessi Where Numero = " + numero +
           " and Sigla = '" + sigla + "' and DataCompetenza = " + std::to_string(data) +
           " Order by ID_Scontrino DESC";
}

/// Execute: empties the queue.
inline constexpr const char* kTogliTutti = "Delete * from Lumigrafo";

/// Execute: puts a number without a letter into the queue, open in the categories 1 to 8.
[[nodiscard]] inline std::string inserisciNumero(const std::string& numero) {
    return "Insert into lumigrafo (sigla, numero, categoria1, categoria2, categoria3, categoria4, "
           "categoria5, "
           "categoria6, categoria7, categoria8) values (''," +
           numero + ",-1,-1,-1,-1,-1,-1,-1,-1);";
}

} // namespace lumigrafo::istruzioni
