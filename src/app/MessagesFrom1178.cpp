// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MessageTable.h"

namespace velra {
namespace {

constexpr MessageRow kFrom1178[] = {
    {1178, "Recover &Unsaved Work...", "Recupera lavoro non sal&vato..."},
    {1179, "Make This Copy &Independent...", "Ren&di indipendente questa copia..."},
    {1180, "Unsaved work is kept; \"Recover Unsaved Work...\" in the menu File brings it back",
     "Il lavoro non salvato è conservato; lo riporta \"Recupera lavoro non salvato...\" nel menu "
     "File"},
    {1181, "This document is open in another window of the program.",
     "Questo documento è aperto in un'altra finestra del programma."},
    {1182, "Document", "Documento"},
    {1183, "Last Change", "Ultima modifica"},
    {1184, "Objects", "Oggetti"},
    {1185, "Titles", "Titoli"},
    {1186, "How It Ended", "Come è finito"},
    {1187, "Left without saving", "Lasciato senza salvare"},
    {1188, "Ended by an error", "Terminato da un errore"},
    {1189, "Cut off", "Interrotto"},
    {1190, "Still open", "Ancora aperto"},
    {1191, "Replaced by your save", "Sostituito dal salvataggio"},
    {1192, "&Recover...", "&Recupera..."},
    {1193, "Save As &Files...", "Salva come &file..."},
    {1194, "&Drop", "&Elimina"},
    {1195, "Drop for good what is kept of ", "Eliminare per sempre ciò che è conservato di "},
    {1196,
     "Changed on the disk since this work was done:", "Modificati su disco dopo questo lavoro:"},
    {1197,
     "Shall the new document have the kept state of them? No takes them as they are on the disk.",
     "Il nuovo documento deve averne lo stato conservato? Con No li prende come sono su disco."},
    {1198, "Folder for the Files", "Cartella per i file"},
    {1199, "The unsaved work is being brought back.", "Il lavoro non salvato viene recuperato."},
    {1200, "Files written: ", "File scritti: "},
    {1201, "There is a file of this name already; choose another one: ",
     "Esiste già un file con questo nome; sceglierne un altro: "},
    {1202, "works on the objects in ", "lavora sugli oggetti in "},
    {1203, "looks for its objects in ", "cerca i suoi oggetti in "},
    {1204, ", and not on those in ", ", e non su quelli in "},
    {1205, ", while they lie in ", ", mentre si trovano in "},
    {1206, "A copy (menu File: \"Make This Copy Independent...\"): this document ",
     "Una copia (menu File: \"Rendi indipendente questa copia...\"): questo documento "},
    {1207, "Not saved. ", "Non salvato. "},
    {1208,
     "From now on this document will use its own objects alone. What was changed and not saved is "
     "not taken along. The objects are in ",
     "D'ora in poi questo documento userà soltanto i propri oggetti. Ciò che è stato modificato e "
     "non salvato non viene ripreso. Gli oggetti sono in "},
    {1209, "The copy is being made independent.", "La copia viene resa indipendente."},
    {1210, "Ex&port As...", "Es&porta come..."},
    {1211, "Impo&rt...", "Impo&rta..."},
    {1212, "Row ", "Riga "},
    {1213, "it has no times that can be read.", "non ha tempi leggibili."},
    {1214, "it has no title.", "non ha titolo."},
    {1215, "it begins outside of what it would be part of.",
     "inizia fuori da ciò di cui farebbe parte."},
    {1216, "it ends behind what it is part of, and was cut there.",
     "termina oltre ciò di cui fa parte, ed è stata tagliata."},
    {1217, "the row that it is part of was not taken.",
     "la riga di cui fa parte non è stata presa."},
    {1218, "there would be more than 32767.", "sarebbero più di 32767."},
    {1219, "a field cannot hold this: ", "un campo non può contenere questo: "},
    {1220, "it could not be made.", "non è stato possibile crearla."},
    {1221, "the Version has no expression of its class.",
     "la Version non ha un'espressione della sua classe."},
    {1222, "Rows of another class, passed over: ", "Righe di un'altra classe, saltate: "},
    {1223, "Segments taken: ", "Segmenti presi: "},
    {1224, "words taken: ", "parole prese: "},
    {1225, "rows not taken: ", "righe non prese: "},
    {1226, "All rows were wanted or none: nothing was changed.",
     "Si volevano tutte le righe o nessuna: nulla è cambiato."},
    {1227, "Go to Time Code", "Vai al codice di tempo"},
    {1228, "Hours:minutes:seconds:frames (those in front can be left out)",
     "Ore:minuti:secondi:fotogrammi (i primi si possono omettere)"},
    {1229, "No time code: ", "Non è un codice di tempo: "},
    {1230, "First point taken: ", "Primo punto preso: "},
    {1231, "First point given up.", "Primo punto abbandonato."},
    {1232, "Segment made: ", "Segmento creato: "},
    {1233, "Segment changed: ", "Segmento modificato: "},
    {1234, "Segments merged: ", "Segmenti uniti: "},
    {1235, "Segments removed: ", "Segmenti rimossi: "},
    {1236, "This field stays as it is: ", "Questo campo resta com'è: "},
};

}  // namespace

std::span<const MessageRow> messagesFrom1178() {
  return kFrom1178;
}

}  // namespace velra
