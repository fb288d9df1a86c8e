<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>Texts</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>spuntato</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>non spuntato</translation>
    </message>
    <message>
        <source>%1, read only</source>
        <translation>%1, sola lettura</translation>
    </message>
    <message>
        <source>Splitter</source>
        <translation>Divisore</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>The movie is being read.</source>
        <translation>Lettura del filmato in corso.</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Linea del tempo</translation>
    </message>
    <message>
        <source>Key frames</source>
        <translation>Fotogrammi chiave</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ore</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minuti</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>fotogrammi</translation>
    </message>
    <message>
        <source>Scroll key frames</source>
        <translation>Scorri i fotogrammi chiave</translation>
    </message>
    <message>
        <source>Play movie</source>
        <translation>Riproduci il filmato</translation>
    </message>
    <message>
        <source>Pause movie</source>
        <translation>Metti in pausa il filmato</translation>
    </message>
    <message>
        <source>step one frame backward</source>
        <translation>indietro di un fotogramma</translation>
    </message>
    <message>
        <source>step one frame forward</source>
        <translation>avanti di un fotogramma</translation>
    </message>
    <message>
        <source>Select Start/End point of new segment</source>
        <translation>Prendi il punto iniziale o finale del nuovo segmento</translation>
    </message>
    <message>
        <source>Create new segment</source>
        <translation>Crea un nuovo segmento</translation>
    </message>
    <message>
        <source>Modify selected segment</source>
        <translation>Modifica il segmento selezionato</translation>
    </message>
    <message>
        <source>Remove selected segment</source>
        <translation>Rimuovi il segmento selezionato</translation>
    </message>
    <message>
        <source>Merge the selected Expresions</source>
        <translation>Unisci i segmenti selezionati</translation>
    </message>
    <message>
        <source>Move previous segment bound</source>
        <translation>Vai al limite di segmento precedente</translation>
    </message>
    <message>
        <source>Move to next segment bound</source>
        <translation>Vai al limite di segmento successivo</translation>
    </message>
    <message>
        <source>Extend rigth bound</source>
        <translation>Sposta qui la fine del segmento precedente</translation>
    </message>
    <message>
        <source>Extend left bound</source>
        <translation>Sposta qui l&apos;inizio del segmento successivo</translation>
    </message>
    <message>
        <source>Set a new keyframe</source>
        <translation>Imposta un nuovo fotogramma chiave</translation>
    </message>
    <message>
        <source>TimeCode</source>
        <translation>Codice di tempo</translation>
    </message>
    <message>
        <source>Transcript</source>
        <translation>Trascrizione</translation>
    </message>
    <message>
        <source>Movie picture</source>
        <translation>Immagine del filmato</translation>
    </message>
    <message>
        <source>The movie cannot be read any more.</source>
        <translation>Il filmato non si può più leggere.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Stop movie</source>
        <translation>Ferma il filmato</translation>
    </message>
    <message>
        <source>To the parent (sub)expression</source>
        <translation>Alla (sotto)espressione superiore</translation>
    </message>
    <message>
        <source>checked</source>
        <translation>con segno</translation>
    </message>
    <message>
        <source>not checked</source>
        <translation>senza segno</translation>
    </message>
</context>
</TS>
