<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandTree</name>
    <message>
        <source>Show commands with these words</source>
        <translation>Befehle mit diesen Wörtern zeigen</translation>
    </message>
    <message>
        <source>Filter of the commands</source>
        <translation>Filter der Befehle</translation>
    </message>
    <message>
        <source>Shows only the commands that hold all of these words</source>
        <translation>Zeigt nur die Befehle, die alle diese Wörter enthalten</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>Fi&amp;lter:</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Enter or a double click puts the chosen command into the script</source>
        <translation>Eingabe oder Doppelklick setzt den gewählten Befehl in das Skript ein</translation>
    </message>
    <message>
        <source>The chosen command</source>
        <translation>Der gewählte Befehl</translation>
    </message>
</context>
<context>
    <name>ConsoleFrame</name>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>What the game says, line by line; the chosen line can be read below</source>
        <translation>Was das Spiel sagt, Zeile für Zeile; die gewählte Zeile steht darunter</translation>
    </message>
    <message>
        <source>Chosen line</source>
        <translation>Gewählte Zeile</translation>
    </message>
    <message>
        <source>The console line that is chosen, whole, for reading and copying</source>
        <translation>Die gewählte Zeile der Konsole, ganz, zum Lesen und Kopieren</translation>
    </message>
    <message>
        <source>Sa&amp;y:</source>
        <translation>Sa&amp;gen:</translation>
    </message>
    <message>
        <source>Input line</source>
        <translation>Eingabezeile</translation>
    </message>
    <message>
        <source>Enter says it; /name text whispers, : and - and ` begin commands</source>
        <translation>Eingabe sagt es; /Name Text flüstert, : und - und ` beginnen Befehle</translation>
    </message>
    <message>
        <source>Tells where to find help</source>
        <translation>Sagt, wo es Hilfe gibt</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Find ne&amp;xt</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;Copy lines</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save to a file...</source>
        <translation>In &amp;Datei speichern...</translation>
    </message>
    <message>
        <source>&amp;Log to a file</source>
        <translation>In Datei &amp;protokollieren</translation>
    </message>
    <message>
        <source>&amp;Monospaced</source>
        <translation>&amp;Feste Zeichenbreite</translation>
    </message>
    <message>
        <source>&amp;Timestamps</source>
        <translation>&amp;Uhrzeiten</translation>
    </message>
    <message>
        <source>Scroll-&amp;back...</source>
        <translation>Zeilen&amp;zahl...</translation>
    </message>
    <message>
        <source>The log %1 can&apos;t be written.</source>
        <translation>Das Protokoll %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The log %1 can&apos;t be written: it is not an ordinary file.</source>
        <translation>Das Protokoll %1 kann nicht geschrieben werden: es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The log %1 can&apos;t be written: the file holds something that is no log. Choose a new one.</source>
        <translation>Das Protokoll %1 kann nicht geschrieben werden: die Datei enthält etwas, das kein Protokoll ist. Wählen Sie eine neue.</translation>
    </message>
    <message>
        <source>The log can&apos;t be written any more.</source>
        <translation>Das Protokoll kann nicht mehr geschrieben werden.</translation>
    </message>
    <message>
        <source>Find this in the console:</source>
        <translation>In der Konsole suchen:</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Save the console</source>
        <translation>Konsole speichern</translation>
    </message>
    <message>
        <source>Text (*.txt) | *.txt</source>
        <translation>Text (*.txt) | *.txt</translation>
    </message>
    <message>
        <source>Log the console to</source>
        <translation>Konsole protokollieren in</translation>
    </message>
    <message>
        <source>How many lines the console keeps:</source>
        <translation>Wie viele Zeilen die Konsole behält:</translation>
    </message>
    <message>
        <source>Scroll-back</source>
        <translation>Zeilenzahl</translation>
    </message>
</context>
<context>
    <name>ControlPanel</name>
    <message>
        <source>Use what is before you</source>
        <translation>Benutze, was vor dir liegt</translation>
    </message>
    <message>
        <source>Step down and to the right</source>
        <translation>Schritt nach unten rechts</translation>
    </message>
    <message>
        <source>Step down and to the left</source>
        <translation>Schritt nach unten links</translation>
    </message>
    <message>
        <source>Step up and to the right</source>
        <translation>Schritt nach oben rechts</translation>
    </message>
    <message>
        <source>Step up and to the left</source>
        <translation>Schritt nach oben links</translation>
    </message>
    <message>
        <source>Stand up</source>
        <translation>Aufstehen</translation>
    </message>
    <message>
        <source>Turn to the right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Turn to the left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Sit down</source>
        <translation>Hinsetzen</translation>
    </message>
    <message>
        <source>Lie down</source>
        <translation>Hinlegen</translation>
    </message>
    <message>
        <source>Pick up or put down</source>
        <translation>Aufheben oder ablegen</translation>
    </message>
    <message>
        <source>Go to map &apos;</source>
        <translation>Gehe zur Karte &apos;</translation>
    </message>
    <message>
        <source>Go to map $</source>
        <translation>Gehe zur Karte $</translation>
    </message>
    <message>
        <source>Go to map (</source>
        <translation>Gehe zur Karte (</translation>
    </message>
    <message>
        <source>Go to where you started</source>
        <translation>Gehe dorthin, wo du angefangen hast</translation>
    </message>
    <message>
        <source>Go to map &amp;</source>
        <translation>Gehe zur Karte &amp;</translation>
    </message>
    <message>
        <source>Go to map *</source>
        <translation>Gehe zur Karte *</translation>
    </message>
    <message>
        <source>Go to Allegria Island</source>
        <translation>Gehe nach Allegria Island</translation>
    </message>
    <message>
        <source>Go to map %</source>
        <translation>Gehe zur Karte %</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Gehe zurück</translation>
    </message>
    <message>
        <source>Change the portrait</source>
        <translation>Wechsle das Porträt</translation>
    </message>
    <message>
        <source>Show or hide the wings</source>
        <translation>Zeige oder verberge die Flügel</translation>
    </message>
    <message>
        <source>Become a dragon</source>
        <translation>Werde ein Drache</translation>
    </message>
    <message>
        <source>Breathe fire</source>
        <translation>Speie Feuer</translation>
    </message>
    <message>
        <source>Become a phoenix</source>
        <translation>Werde ein Phönix</translation>
    </message>
    <message>
        <source>Burst into flame</source>
        <translation>Geh in Flammen auf</translation>
    </message>
    <message>
        <source>Become a gryffe</source>
        <translation>Werde ein Greif</translation>
    </message>
    <message>
        <source>Become an eagle</source>
        <translation>Werde ein Adler</translation>
    </message>
    <message>
        <source>Pages of the control panel</source>
        <translation>Seiten der Schalttafel</translation>
    </message>
    <message>
        <source>Chooses which commands are shown</source>
        <translation>Wählt, welche Befehle gezeigt werden</translation>
    </message>
    <message>
        <source>%1: sends %2</source>
        <translation>%1: sendet %2</translation>
    </message>
    <message>
        <source>Opens %1</source>
        <translation>Öffnet %1</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>%1 already exists. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>Documents</name>
    <message>
        <source>configuration</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is neither a profile (.tvm) nor a script (.vs).</source>
        <translation>%1 ist weder ein Profil (.tvm) noch ein Skript (.vs).</translation>
    </message>
    <message>
        <source>%1 has ended the program the last time, so its script is not loaded. Opened once more, it is.</source>
        <translation>%1 hat das Programm das letzte Mal beendet, darum ist das Skript nicht geladen. Noch einmal geöffnet, wird es geladen.</translation>
    </message>
    <message>
        <source>%1 stands in the editor (Script, Edit); saving it there loads it.</source>
        <translation>%1 steht im Editor (Script, Bearbeiten); dort gesichert wird es geladen.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The profile names the script %1, which does not exist.</source>
        <translation>Das Profil nennt das Skript %1, das es nicht gibt.</translation>
    </message>
    <message>
        <source>%1.
The profile counts as not saved; choose another place for it.</source>
        <translation>%1.
Das Profil gilt als nicht gespeichert; wähle einen anderen Ort dafür.</translation>
    </message>
    <message>
        <source>The program did not end in order the last time. Take back the unsaved %1?</source>
        <translation>Das Programm wurde das letzte Mal nicht ordentlich beendet. Nicht Gespeichertes zurückholen: %1?</translation>
    </message>
    <message>
        <source>Unsaved work can&apos;t be put aside, and would be lost in a crash: %1</source>
        <translation>Nicht Gespeichertes kann nicht beiseitegelegt werden und ginge bei einem Absturz verloren: %1</translation>
    </message>
    <message>
        <source>Unsaved work could not be put aside: %1</source>
        <translation>Nicht Gespeichertes konnte nicht beiseitegelegt werden: %1</translation>
    </message>
    <message>
        <source>Unsaved work was put aside in %1, and will be offered at the next start.</source>
        <translation>Nicht Gespeichertes wurde in %1 beiseitegelegt und wird beim nächsten Start angeboten.</translation>
    </message>
</context>
<context>
    <name>EmoticonRow</name>
    <message>
        <source>Emoticon %1: adds %2 to the line</source>
        <translation>Emoticon %1: hängt %2 an die Zeile an</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>Su&amp;chen:</translation>
    </message>
    <message>
        <source>Re&amp;place with:</source>
        <translation>&amp;Ersetzen durch:</translation>
    </message>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Previ&amp;ous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>E&amp;rsetzen</translation>
    </message>
    <message>
        <source>Replace &amp;all</source>
        <translation>Alle erse&amp;tzen</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>How to make a bot is told in guide.md, and every command in language.md, both in %1. Other makers are glad to help in the game&apos;s own bot-making dreams.

Settings and data files are kept in %2.</source>
        <translation>Wie man einen Bot baut, steht in guide.md, und jeder Befehl in language.md, beide in %1. Andere helfen gern in den Träumen des Spiels, in denen Bots gebaut werden.

Einstellungen und Datendateien liegen in %2.</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;The desktop&apos;s</source>
        <translation>Die de&amp;s Desktops</translation>
    </message>
</context>
<context>
    <name>PracticeDoor</name>
    <message>
        <source>The practice dream can&apos;t be opened: %1</source>
        <translation>Der Übungstraum kann nicht geöffnet werden: %1</translation>
    </message>
</context>
<context>
    <name>SessionMenu</name>
    <message>
        <source>S&amp;ession</source>
        <translation>S&amp;itzung</translation>
    </message>
    <message>
        <source>&amp;Reconnect when the connection is lost</source>
        <translation>&amp;Neu verbinden, wenn die Verbindung verloren geht</translation>
    </message>
    <message>
        <source>&amp;Keep lines that the network has split</source>
        <translation>&amp;Zeilen behalten, die das Netz geteilt hat</translation>
    </message>
    <message>
        <source>Connect when the program &amp;starts</source>
        <translation>Beim &amp;Start verbinden</translation>
    </message>
    <message>
        <source>&amp;Brake...</source>
        <translation>&amp;Bremse...</translation>
    </message>
    <message>
        <source>How many lines a second the script may send, %1 at present. 0 lets it send as many as it likes.</source>
        <translation>Wie viele Zeilen das Skript in der Sekunde senden darf, zurzeit %1. Mit 0 sendet es beliebig viele.</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Bremse</translation>
    </message>
</context>
<context>
    <name>SessionWatch</name>
    <message>
        <source>Connecting...</source>
        <translation>Verbinde...</translation>
    </message>
    <message>
        <source>The server has ended the connection before the bot was let in: check its name and password.</source>
        <translation>Der Server hat die Verbindung beendet, bevor der Bot eingelassen wurde: prüfe Name und Passwort.</translation>
    </message>
    <message>
        <source>The server has ended the connection.</source>
        <translation>Der Server hat die Verbindung beendet.</translation>
    </message>
    <message>
        <source>No connection: %1</source>
        <translation>Keine Verbindung: %1</translation>
    </message>
    <message numerus="yes">
        <source>Trying again in %n second(s).</source>
        <translation>
            <numerusform>Neuer Versuch in %n Sekunde.</numerusform>
            <numerusform>Neuer Versuch in %n Sekunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The network may have split it: Session, Keep lines that the network has split, mends that.</source>
        <translation>Vielleicht hat das Netz sie geteilt: Dagegen hilft Sitzung, Zeilen behalten, die das Netz geteilt hat.</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimieren</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>The bot goes on here. A double click brings the window back.</source>
        <translation>Der Bot läuft hier weiter. Ein Doppelklick holt das Fenster zurück.</translation>
    </message>
    <message>
        <source>A whisper</source>
        <translation>Ein Flüstern</translation>
    </message>
</context>
<context>
    <name>UnnamedFile</name>
    <message>
        <source>The profile can&apos;t name %1: it is written in the letters of Windows-1252, and this path holds others.
A profile that is saved in the same folder, or beside it, can name the file from there. Save it there first.</source>
        <translation>Das Profil kann %1 nicht nennen: Es ist mit den Zeichen von Windows-1252 geschrieben, und dieser Pfad enthält andere.
Ein Profil, das im selben Ordner oder daneben gespeichert ist, kann die Datei von dort aus nennen. Speichere es zuerst dort.</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>It is too large.</source>
        <translation>Sie ist zu groß.</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>The new version has been saved.</source>
        <translation>Die neue Version ist gespeichert.</translation>
    </message>
    <message>
        <source>The new version was not saved: %1</source>
        <translation>Die neue Version wurde nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Version %1 is there:

%2

Save it to a place of your choice?</source>
        <translation>Version %1 ist da:

%2

An einem Ort deiner Wahl speichern?</translation>
    </message>
    <message>
        <source>Save the new version</source>
        <translation>Neue Version speichern</translation>
    </message>
    <message>
        <source>Archive (*.zip) | *.zip</source>
        <translation>Archiv (*.zip) | *.zip</translation>
    </message>
</context>
<context>
    <name>VariableFrame</name>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hin&amp;zufügen</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Adds a variable</source>
        <translation>Fügt eine Variable hinzu</translation>
    </message>
    <message>
        <source>Removes the chosen variable</source>
        <translation>Entfernt die gewählte Variable</translation>
    </message>
</context>
<context>
    <name>VariableList</name>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>The script&apos;s variables; F2 changes the value or the name that is chosen</source>
        <translation>Die Variablen des Skripts; F2 ändert den gewählten Wert oder Namen</translation>
    </message>
</context>
<context>
    <name>frmCfg</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Chooses which page of the configuration is shown</source>
        <translation>Wählt, welche Seite der Einstellungen gezeigt wird</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Takes the changes over</source>
        <translation>Übernimmt die Änderungen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Drops the changes</source>
        <translation>Verwirft die Änderungen</translation>
    </message>
    <message>
        <source>Furcadia client</source>
        <translation>Furcadia-Client</translation>
    </message>
    <message>
        <source>Path of the game client&apos;s program</source>
        <translation>Pfad zum Programm des Spiel-Clients</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Choose the client</source>
        <translation>Client wählen</translation>
    </message>
    <message>
        <source>Picks the game client</source>
        <translation>Wählt den Spiel-Client aus</translation>
    </message>
    <message>
        <source>Character file</source>
        <translation>Charakterdatei</translation>
    </message>
    <message>
        <source>Path of the character the bot logs in with</source>
        <translation>Pfad des Charakters, mit dem der Bot sich anmeldet</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>S&amp;uchen...</translation>
    </message>
    <message>
        <source>Choose the character</source>
        <translation>Charakter wählen</translation>
    </message>
    <message>
        <source>Picks the character file</source>
        <translation>Wählt die Charakterdatei aus</translation>
    </message>
    <message>
        <source>Bot owners</source>
        <translation>Besitzer des Bots</translation>
    </message>
    <message>
        <source>Who owns the bot</source>
        <translation>Wem der Bot gehört</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>Add an owner</source>
        <translation>Besitzer hinzufügen</translation>
    </message>
    <message>
        <source>Asks for a name</source>
        <translation>Fragt nach einem Namen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the owner</source>
        <translation>Besitzer löschen</translation>
    </message>
    <message>
        <source>Takes the shown owner off the list</source>
        <translation>Nimmt den gezeigten Besitzer von der Liste</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>The server the bot connects to by itself</source>
        <translation>Der Server, mit dem sich der Bot selbst verbindet</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>The server&apos;s port</source>
        <translation>Der Port des Servers</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>Connect with Furcadia client</source>
        <translation>Mit dem Furcadia-Client verbinden</translation>
    </message>
    <message>
        <source>The game client connects through the bot, so that you can watch and play along</source>
        <translation>Der Spiel-Client verbindet sich durch den Bot, so dass du zusehen und mitspielen kannst</translation>
    </message>
    <message>
        <source>C&amp;lose the client when the session ends.</source>
        <translation>C&amp;lient schließen, wenn die Sitzung endet.</translation>
    </message>
    <message>
        <source>Close the client</source>
        <translation>Client schließen</translation>
    </message>
    <message>
        <source>Closes the client&apos;s window when the session ends</source>
        <translation>Schließt das Fenster des Clients, wenn die Sitzung endet</translation>
    </message>
    <message>
        <source>Maps where the bot may speak</source>
        <translation>Karten, auf denen der Bot sprechen darf</translation>
    </message>
    <message>
        <source>Elsewhere the bot keeps quiet</source>
        <translation>Anderswo schweigt der Bot</translation>
    </message>
    <message>
        <source>Add &amp;map...</source>
        <translation>&amp;Karte hinzufügen...</translation>
    </message>
    <message>
        <source>Add a map</source>
        <translation>Karte hinzufügen</translation>
    </message>
    <message>
        <source>D&amp;elete map</source>
        <translation>Karte löschen (&amp;E)</translation>
    </message>
    <message>
        <source>Delete the map</source>
        <translation>Karte löschen</translation>
    </message>
    <message>
        <source>Takes the shown map off the list</source>
        <translation>Nimmt die gezeigte Karte von der Liste</translation>
    </message>
    <message>
        <source>Signature in the bot&apos;s description</source>
        <translation>Signatur in der Beschreibung des Bots</translation>
    </message>
    <message>
        <source>Be&amp;fore the description</source>
        <translation>&amp;Vor der Beschreibung</translation>
    </message>
    <message>
        <source>Signature before the description</source>
        <translation>Signatur vor der Beschreibung</translation>
    </message>
    <message>
        <source>[Tandry Vorel] description</source>
        <translation>[Tandry Vorel] Beschreibung</translation>
    </message>
    <message>
        <source>Be&amp;hind the description</source>
        <translation>H&amp;inter der Beschreibung</translation>
    </message>
    <message>
        <source>Signature behind the description</source>
        <translation>Signatur hinter der Beschreibung</translation>
    </message>
    <message>
        <source>description [Tandry Vorel]</source>
        <translation>Beschreibung [Tandry Vorel]</translation>
    </message>
    <message>
        <source>Ignored furres</source>
        <translation>Ignorierte Furres</translation>
    </message>
    <message>
        <source>Whom the bot does not hear</source>
        <translation>Wen der Bot nicht hört</translation>
    </message>
    <message>
        <source>Ad&amp;d...</source>
        <translation>Hin&amp;zufügen...</translation>
    </message>
    <message>
        <source>Ignore a furre</source>
        <translation>Einen Furre ignorieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Hears the chosen furre again</source>
        <translation>Hört den gewählten Furre wieder</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 32767.</source>
        <translation>Der Port ist eine Zahl von 1 bis 32767.</translation>
    </message>
</context>
<context>
    <name>frmGS</name>
    <message>
        <source>Script</source>
        <translation>Skript</translation>
    </message>
    <message>
        <source>The text of the script. F6 leads to the list of commands.</source>
        <translation>Der Text des Skripts. F6 führt zur Liste der Befehle.</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Auss&amp;chneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Find and replace...</source>
        <translation>&amp;Suchen und Ersetzen...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Weitersuchen (&amp;X)</translation>
    </message>
    <message>
        <source>Find pre&amp;vious</source>
        <translation>&amp;Vorheriges suchen</translation>
    </message>
    <message>
        <source>&amp;Go to line...</source>
        <translation>&amp;Gehe zu Zeile...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Usual size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Commands</source>
        <translation>&amp;Befehle</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>Gehe zu Zeile</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Zeile:</translation>
    </message>
    <message>
        <source>Line %1 holds characters that the game does not have. Save them as question marks?</source>
        <translation>Zeile %1 enthält Zeichen, die das Spiel nicht kennt. Sollen sie als Fragezeichen gesichert werden?</translation>
    </message>
    <message>
        <source>%1.
The script counts as not saved; choose another place for it.</source>
        <translation>%1.
Das Skript gilt als nicht gespeichert; wähle einen anderen Ort dafür.</translation>
    </message>
</context>
<context>
    <name>frmVorel</name>
    <message>
        <source>Practice dream on this computer</source>
        <translation>Übungstraum auf diesem Computer</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Zuletzt benutzt</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Console</source>
        <translation>&amp;Konsole</translation>
    </message>
    <message>
        <source>&amp;Notify of whispers</source>
        <translation>Flüstern &amp;melden</translation>
    </message>
    <message>
        <source>C&amp;onfiguration</source>
        <translation>Einstell&amp;ungen</translation>
    </message>
    <message>
        <source>&amp;Vorel Configuration...</source>
        <translation>&amp;Vorel einstellen...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>%1 could not be started.</source>
        <translation>%1 konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>&quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>Die Sprache wechselt mit dem nächsten Start.</translation>
    </message>
    <message>
        <source>Nothing can be written in %1: neither settings nor unsaved work will be kept.</source>
        <translation>In %1 kann nichts geschrieben werden: Weder Einstellungen noch ungesicherte Arbeit bleiben erhalten.</translation>
    </message>
    <message>
        <source>The options can&apos;t be kept: %1</source>
        <translation>Die Einstellungen des Programms bleiben nicht erhalten: %1</translation>
    </message>
    <message>
        <source>The options can&apos;t be kept.</source>
        <translation>Die Einstellungen des Programms bleiben nicht erhalten.</translation>
    </message>
    <message>
        <source>%1.
The next start will not know this profile and the window&apos;s place.</source>
        <translation>%1.
Der nächste Start kennt dieses Profil und den Platz des Fensters nicht.</translation>
    </message>
    <message>
        <source>The list of commands can&apos;t be written, so the script editor shows none: %1</source>
        <translation>Die Liste der Befehle kann nicht geschrieben werden, darum zeigt der Skripteditor keine: %1</translation>
    </message>
</context>
</TS>
