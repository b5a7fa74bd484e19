<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Constant</name>
    <message>
        <source>Avogadro&apos;s number, NA</source>
        <translation>Numero di Avogadro, NA</translation>
    </message>
    <message>
        <source>Boltzmann constant, k</source>
        <translation>Costante di Boltzmann, k</translation>
    </message>
    <message>
        <source>Molar volume, Vm</source>
        <translation>Volume molare, Vm</translation>
    </message>
    <message>
        <source>Universal gas constant, R</source>
        <translation>Costante universale dei gas, R</translation>
    </message>
    <message>
        <source>Standard temperature, StdT</source>
        <translation>Temperatura normale, StdT</translation>
    </message>
    <message>
        <source>Standard pressure, StdP</source>
        <translation>Pressione normale, StdP</translation>
    </message>
    <message>
        <source>Stefan-Boltzmann constant</source>
        <translation>Costante di Stefan-Boltzmann</translation>
    </message>
    <message>
        <source>Speed of light in vacuum, c</source>
        <translation>Velocità della luce nel vuoto, c</translation>
    </message>
    <message>
        <source>Permittivity of vacuum</source>
        <translation>Permittività del vuoto</translation>
    </message>
    <message>
        <source>Permeability of vacuum</source>
        <translation>Permeabilità del vuoto</translation>
    </message>
    <message>
        <source>Acceleration of gravity, g</source>
        <translation>Accelerazione di gravità, g</translation>
    </message>
    <message>
        <source>Gravitational constant, G</source>
        <translation>Costante gravitazionale, G</translation>
    </message>
    <message>
        <source>Planck&apos;s constant, h</source>
        <translation>Costante di Planck, h</translation>
    </message>
    <message>
        <source>Dirac&apos;s constant, hbar</source>
        <translation>Costante di Planck ridotta, hbar</translation>
    </message>
    <message>
        <source>Electron charge, q</source>
        <translation>Carica dell’elettrone, q</translation>
    </message>
    <message>
        <source>Electron rest mass, me</source>
        <translation>Massa a riposo dell’elettrone, me</translation>
    </message>
    <message>
        <source>q/me, qme</source>
        <translation>q/me, qme</translation>
    </message>
    <message>
        <source>Proton rest mass, mp</source>
        <translation>Massa a riposo del protone, mp</translation>
    </message>
    <message>
        <source>mp/me, mpme</source>
        <translation>mp/me, mpme</translation>
    </message>
    <message>
        <source>Fine structure constant</source>
        <translation>Costante di struttura fine</translation>
    </message>
    <message>
        <source>Magnetic flux quantum</source>
        <translation>Quanto di flusso magnetico</translation>
    </message>
    <message>
        <source>Faraday constant, F</source>
        <translation>Costante di Faraday, F</translation>
    </message>
    <message>
        <source>Rydberg constant</source>
        <translation>Costante di Rydberg</translation>
    </message>
    <message>
        <source>Bohr radius, a0</source>
        <translation>Raggio di Bohr, a0</translation>
    </message>
    <message>
        <source>Bohr magneton</source>
        <translation>Magnetone di Bohr</translation>
    </message>
    <message>
        <source>Nuclear magneton</source>
        <translation>Magnetone nucleare</translation>
    </message>
    <message>
        <source>Photon wavelength (ch/e)</source>
        <translation>Lunghezza d’onda del fotone (ch/e)</translation>
    </message>
    <message>
        <source>Photon frequency (e/h)</source>
        <translation>Frequenza del fotone (e/h)</translation>
    </message>
    <message>
        <source>Compton wavelength</source>
        <translation>Lunghezza d’onda Compton</translation>
    </message>
    <message>
        <source>Wien displacement constant, c3</source>
        <translation>Costante di spostamento di Wien, c3</translation>
    </message>
    <message>
        <source>Dielectric constant</source>
        <translation>Costante dielettrica</translation>
    </message>
    <message>
        <source>SiO2 dielectric constant</source>
        <translation>Costante dielettrica del SiO2</translation>
    </message>
    <message>
        <source>Reference intensity, I0</source>
        <translation>Intensità di riferimento, I0</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>Digit 0</source>
        <translation>Cifra 0</translation>
    </message>
    <message>
        <source>Digit 1</source>
        <translation>Cifra 1</translation>
    </message>
    <message>
        <source>Digit 2</source>
        <translation>Cifra 2</translation>
    </message>
    <message>
        <source>Digit 3</source>
        <translation>Cifra 3</translation>
    </message>
    <message>
        <source>Digit 4</source>
        <translation>Cifra 4</translation>
    </message>
    <message>
        <source>Digit 5</source>
        <translation>Cifra 5</translation>
    </message>
    <message>
        <source>Digit 6</source>
        <translation>Cifra 6</translation>
    </message>
    <message>
        <source>Digit 7</source>
        <translation>Cifra 7</translation>
    </message>
    <message>
        <source>Digit 8</source>
        <translation>Cifra 8</translation>
    </message>
    <message>
        <source>Digit 9</source>
        <translation>Cifra 9</translation>
    </message>
    <message>
        <source>Hexadecimal digit A (10)</source>
        <translation>Cifra esadecimale A (10)</translation>
    </message>
    <message>
        <source>Hexadecimal digit B (11)</source>
        <translation>Cifra esadecimale B (11)</translation>
    </message>
    <message>
        <source>Hexadecimal digit C (12)</source>
        <translation>Cifra esadecimale C (12)</translation>
    </message>
    <message>
        <source>Hexadecimal digit D (13)</source>
        <translation>Cifra esadecimale D (13)</translation>
    </message>
    <message>
        <source>Hexadecimal digit E (14)</source>
        <translation>Cifra esadecimale E (14)</translation>
    </message>
    <message>
        <source>E (in an integer base)</source>
        <translation>E (in una base intera)</translation>
    </message>
    <message>
        <source>Hexadecimal digit F (15)</source>
        <translation>Cifra esadecimale F (15)</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Separatore decimale</translation>
    </message>
    <message>
        <source>. or ,</source>
        <translation>. o ,</translation>
    </message>
    <message>
        <source>Decimal point (second key)</source>
        <translation>Separatore decimale (secondo tasto)</translation>
    </message>
    <message>
        <source>Enter exponent</source>
        <translation>Inserisci esponente</translation>
    </message>
    <message>
        <source>Change sign</source>
        <translation>Cambia segno</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Enter (RPN)</source>
        <translation>Invio (RPN)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Somma</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Sottrai</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Moltiplica</translation>
    </message>
    <message>
        <source>* or X</source>
        <translation>* o X</translation>
    </message>
    <message>
        <source>Divide</source>
        <translation>Dividi</translation>
    </message>
    <message>
        <source>Equals: complete the calculation</source>
        <translation>Uguale: completa il calcolo</translation>
    </message>
    <message>
        <source>= or Enter</source>
        <translation>= o Invio</translation>
    </message>
    <message>
        <source>Shift: the keys&apos; second functions</source>
        <translation>Maiusc: le seconde funzioni dei tasti</translation>
    </message>
    <message>
        <source>Show all digits, dates as numbers (toggle)</source>
        <translation>Mostra tutte le cifre, date come numeri (alterna)</translation>
    </message>
    <message>
        <source>Clear all: stack, registers and macro</source>
        <translation>Cancella tutto: stack, registri e macro</translation>
    </message>
    <message>
        <source>Clear stack</source>
        <translation>Cancella lo stack</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>Clear X</source>
        <translation>Cancella X</translation>
    </message>
    <message>
        <source>Clear all (second key)</source>
        <translation>Cancella tutto (secondo tasto)</translation>
    </message>
    <message>
        <source>Clear stack (second key)</source>
        <translation>Cancella lo stack (secondo tasto)</translation>
    </message>
    <message>
        <source>Clear X (second key)</source>
        <translation>Cancella X (secondo tasto)</translation>
    </message>
    <message>
        <source>Clear user, financial and statistical registers</source>
        <translation>Cancella i registri utente, finanziari e statistici</translation>
    </message>
    <message>
        <source>Clear the financial registers</source>
        <translation>Cancella i registri finanziari</translation>
    </message>
    <message>
        <source>Clear the statistical sums</source>
        <translation>Cancella le somme statistiche</translation>
    </message>
    <message>
        <source>Roll the stack down</source>
        <translation>Ruota lo stack verso il basso</translation>
    </message>
    <message>
        <source>Roll the stack up</source>
        <translation>Ruota lo stack verso l’alto</translation>
    </message>
    <message>
        <source>Drop X</source>
        <translation>Elimina X</translation>
    </message>
    <message>
        <source>Fill the stack with X</source>
        <translation>Riempi lo stack con X</translation>
    </message>
    <message>
        <source>Exchange X and Y</source>
        <translation>Scambia X e Y</translation>
    </message>
    <message>
        <source>Store X in a register</source>
        <translation>Memorizza X in un registro</translation>
    </message>
    <message>
        <source>Last X</source>
        <translation>Ultimo X</translation>
    </message>
    <message>
        <source>Recall a register</source>
        <translation>Richiama un registro</translation>
    </message>
    <message>
        <source>Exchange X with a register</source>
        <translation>Scambia X con un registro</translation>
    </message>
    <message>
        <source>Open parenthesis</source>
        <translation>Apri parentesi</translation>
    </message>
    <message>
        <source>Close parenthesis</source>
        <translation>Chiudi parentesi</translation>
    </message>
    <message>
        <source>Percent of total: X as a percentage of Y</source>
        <translation>Percentuale del totale: X come percentuale di Y</translation>
    </message>
    <message>
        <source>Percent change from Y to X</source>
        <translation>Variazione percentuale da Y a X</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percentuale</translation>
    </message>
    <message>
        <source>Round X to the digits shown</source>
        <translation>Arrotonda X alle cifre mostrate</translation>
    </message>
    <message>
        <source>Integer part</source>
        <translation>Parte intera</translation>
    </message>
    <message>
        <source>Absolute value</source>
        <translation>Valore assoluto</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Radice quadrata</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrato</translation>
    </message>
    <message>
        <source>Cube root</source>
        <translation>Radice cubica</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Cubo</translation>
    </message>
    <message>
        <source>Power: Y raised to X</source>
        <translation>Potenza: Y elevato a X</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Reciproco</translation>
    </message>
    <message>
        <source>Fractional part</source>
        <translation>Parte frazionaria</translation>
    </message>
    <message>
        <source>Remainder of Y divided by X</source>
        <translation>Resto di Y diviso X</translation>
    </message>
    <message>
        <source>Payments at the beginning or end of periods (toggle)</source>
        <translation>Rate all’inizio o alla fine dei periodi (alterna)</translation>
    </message>
    <message>
        <source>Number of payments</source>
        <translation>Numero di rate</translation>
    </message>
    <message>
        <source>Nominal annual interest rate, percent</source>
        <translation>Tasso di interesse nominale annuo, in percentuale</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>Valore attuale</translation>
    </message>
    <message>
        <source>Payment per period</source>
        <translation>Rata per periodo</translation>
    </message>
    <message>
        <source>Future value</source>
        <translation>Valore futuro</translation>
    </message>
    <message>
        <source>Payments per year</source>
        <translation>Rate per anno</translation>
    </message>
    <message>
        <source>Nominal annual interest rate</source>
        <translation>Tasso di interesse nominale annuo</translation>
    </message>
    <message>
        <source>Effective annual interest rate</source>
        <translation>Tasso di interesse effettivo annuo</translation>
    </message>
    <message>
        <source>Years times payments per year, stored in N</source>
        <translation>Anni per rate all’anno, memorizzato in N</translation>
    </message>
    <message>
        <source>Divide by payments per year</source>
        <translation>Dividi per le rate all’anno</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Costo</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prezzo</translation>
    </message>
    <message>
        <source>Margin, percent of price</source>
        <translation>Margine, percentuale del prezzo</translation>
    </message>
    <message>
        <source>Markup, percent of cost</source>
        <translation>Ricarico, percentuale del costo</translation>
    </message>
    <message>
        <source>Amortize a range of payments</source>
        <translation>Ammortizza una serie di rate</translation>
    </message>
    <message>
        <source>Amortize the next range of payments</source>
        <translation>Ammortizza la serie di rate successiva</translation>
    </message>
    <message>
        <source>Cash flow: append X to the cash flows</source>
        <translation>Flusso di cassa: aggiungi X ai flussi</translation>
    </message>
    <message>
        <source>Times the last cash flow repeats</source>
        <translation>Ripetizioni dell’ultimo flusso</translation>
    </message>
    <message>
        <source>Net present value</source>
        <translation>Valore attuale netto</translation>
    </message>
    <message>
        <source>Internal rate of return per year</source>
        <translation>Tasso interno di rendimento annuo</translation>
    </message>
    <message>
        <source>Sine</source>
        <translation>Seno</translation>
    </message>
    <message>
        <source>Cosine</source>
        <translation>Coseno</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Arc sine</source>
        <translation>Arcoseno</translation>
    </message>
    <message>
        <source>Arc cosine</source>
        <translation>Arcocoseno</translation>
    </message>
    <message>
        <source>Arc tangent</source>
        <translation>Arcotangente</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi greco</translation>
    </message>
    <message>
        <source>Hyperbolic prefix for the next function</source>
        <translation>Prefisso iperbolico per la funzione successiva</translation>
    </message>
    <message>
        <source>Natural logarithm</source>
        <translation>Logaritmo naturale</translation>
    </message>
    <message>
        <source>Common logarithm</source>
        <translation>Logaritmo decimale</translation>
    </message>
    <message>
        <source>Natural exponential</source>
        <translation>Esponenziale</translation>
    </message>
    <message>
        <source>Power of ten</source>
        <translation>Potenza di dieci</translation>
    </message>
    <message>
        <source>Angles in degrees</source>
        <translation>Angoli in gradi</translation>
    </message>
    <message>
        <source>Angles in radians</source>
        <translation>Angoli in radianti</translation>
    </message>
    <message>
        <source>Angles in grads</source>
        <translation>Angoli in gradi centesimali</translation>
    </message>
    <message>
        <source>Radians to degrees</source>
        <translation>Da radianti a gradi</translation>
    </message>
    <message>
        <source>Degrees to radians</source>
        <translation>Da gradi a radianti</translation>
    </message>
    <message>
        <source>Polar to rectangular</source>
        <translation>Da polari a rettangolari</translation>
    </message>
    <message>
        <source>Rectangular to polar</source>
        <translation>Da rettangolari a polari</translation>
    </message>
    <message>
        <source>Hours to hours.minutes-seconds (h.mmss)</source>
        <translation>Da ore a ore.minuti-secondi (h.mmss)</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to hours</source>
        <translation>Da ore.minuti-secondi (h.mmss) a ore</translation>
    </message>
    <message>
        <source>Add the point (X, Y) to the sums</source>
        <translation>Aggiungi il punto (X, Y) alle somme</translation>
    </message>
    <message>
        <source>Remove the point (X, Y) from the sums</source>
        <translation>Togli il punto (X, Y) dalle somme</translation>
    </message>
    <message>
        <source>Sum of x</source>
        <translation>Somma delle x</translation>
    </message>
    <message>
        <source>Sum of x squared</source>
        <translation>Somma dei quadrati di x</translation>
    </message>
    <message>
        <source>Sum of y</source>
        <translation>Somma delle y</translation>
    </message>
    <message>
        <source>Sum of y squared</source>
        <translation>Somma dei quadrati di y</translation>
    </message>
    <message>
        <source>Sum of the products xy</source>
        <translation>Somma dei prodotti xy</translation>
    </message>
    <message>
        <source>Number of points</source>
        <translation>Numero di punti</translation>
    </message>
    <message>
        <source>Mean of x</source>
        <translation>Media di x</translation>
    </message>
    <message>
        <source>Mean of x weighted by y</source>
        <translation>Media di x pesata con y</translation>
    </message>
    <message>
        <source>Mean of y</source>
        <translation>Media di y</translation>
    </message>
    <message>
        <source>Estimated x for the y in X; r in Y</source>
        <translation>x stimato per la y in X; r in Y</translation>
    </message>
    <message>
        <source>Estimated y for the x in X; slope in Y</source>
        <translation>y stimato per la x in X; pendenza in Y</translation>
    </message>
    <message>
        <source>Random number</source>
        <translation>Numero casuale</translation>
    </message>
    <message>
        <source>Factorial</source>
        <translation>Fattoriale</translation>
    </message>
    <message>
        <source>Logarithm of the gamma function</source>
        <translation>Logaritmo della funzione gamma</translation>
    </message>
    <message>
        <source>Sample standard deviation</source>
        <translation>Deviazione standard campionaria</translation>
    </message>
    <message>
        <source>Population standard deviation</source>
        <translation>Deviazione standard della popolazione</translation>
    </message>
    <message>
        <source>Combinations of X items from Y</source>
        <translation>Combinazioni di X elementi da Y</translation>
    </message>
    <message>
        <source>Permutations of X items from Y</source>
        <translation>Disposizioni di X elementi da Y</translation>
    </message>
    <message>
        <source>Binary entry and display</source>
        <translation>Inserimento e visualizzazione binari</translation>
    </message>
    <message>
        <source>Octal entry and display</source>
        <translation>Inserimento e visualizzazione ottali</translation>
    </message>
    <message>
        <source>Decimal integer entry and display</source>
        <translation>Inserimento e visualizzazione di interi decimali</translation>
    </message>
    <message>
        <source>Hexadecimal entry and display</source>
        <translation>Inserimento e visualizzazione esadecimali</translation>
    </message>
    <message>
        <source>Bitwise AND</source>
        <translation>AND bit a bit</translation>
    </message>
    <message>
        <source>Bitwise OR</source>
        <translation>OR bit a bit</translation>
    </message>
    <message>
        <source>Bitwise exclusive OR</source>
        <translation>OR esclusivo bit a bit</translation>
    </message>
    <message>
        <source>Bitwise NOT</source>
        <translation>NOT bit a bit</translation>
    </message>
    <message>
        <source>Shift Y left by X bits</source>
        <translation>Sposta Y a sinistra di X bit</translation>
    </message>
    <message>
        <source>Shift Y right by X bits (logical)</source>
        <translation>Sposta Y a destra di X bit (logico)</translation>
    </message>
    <message>
        <source>Arithmetic shift right, keeping the sign</source>
        <translation>Spostamento aritmetico a destra, segno mantenuto</translation>
    </message>
    <message>
        <source>Rotate Y right by X bits</source>
        <translation>Ruota Y a destra di X bit</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pollici</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Piedi</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Miglia</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Metri</translation>
    </message>
    <message>
        <source>Square inches</source>
        <translation>Pollici quadrati</translation>
    </message>
    <message>
        <source>Square feet</source>
        <translation>Piedi quadrati</translation>
    </message>
    <message>
        <source>Square miles</source>
        <translation>Miglia quadrate</translation>
    </message>
    <message>
        <source>Square meters</source>
        <translation>Metri quadrati</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Libbre</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Once</translation>
    </message>
    <message>
        <source>Kilograms</source>
        <translation>Chilogrammi</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Grammi</translation>
    </message>
    <message>
        <source>Inches per second</source>
        <translation>Pollici al secondo</translation>
    </message>
    <message>
        <source>Feet per second</source>
        <translation>Piedi al secondo</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Metri al secondo</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Miglia orarie</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Chilometri orari</translation>
    </message>
    <message>
        <source>Centimeters per second</source>
        <translation>Centimetri al secondo</translation>
    </message>
    <message>
        <source>US gallons</source>
        <translation>Galloni USA</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Millilitri</translation>
    </message>
    <message>
        <source>Liters</source>
        <translation>Litri</translation>
    </message>
    <message>
        <source>US fluid ounces</source>
        <translation>Once liquide USA</translation>
    </message>
    <message>
        <source>Degrees Celsius</source>
        <translation>Gradi Celsius</translation>
    </message>
    <message>
        <source>Degrees Fahrenheit</source>
        <translation>Gradi Fahrenheit</translation>
    </message>
    <message>
        <source>X-th root of Y</source>
        <translation>Radice X-esima di Y</translation>
    </message>
    <message>
        <source>8-bit unsigned integer</source>
        <translation>Intero a 8 bit senza segno</translation>
    </message>
    <message>
        <source>8-bit signed integer</source>
        <translation>Intero a 8 bit con segno</translation>
    </message>
    <message>
        <source>16-bit unsigned integer</source>
        <translation>Intero a 16 bit senza segno</translation>
    </message>
    <message>
        <source>16-bit signed integer</source>
        <translation>Intero a 16 bit con segno</translation>
    </message>
    <message>
        <source>32-bit unsigned integer</source>
        <translation>Intero a 32 bit senza segno</translation>
    </message>
    <message>
        <source>32-bit signed integer</source>
        <translation>Intero a 32 bit con segno</translation>
    </message>
    <message>
        <source>Standard number format</source>
        <translation>Formato numerico standard</translation>
    </message>
    <message>
        <source>Scientific format: digits follow</source>
        <translation>Formato scientifico: seguono le cifre</translation>
    </message>
    <message>
        <source>Engineering format: digits follow</source>
        <translation>Formato ingegneristico: seguono le cifre</translation>
    </message>
    <message>
        <source>Largest whole number not above X</source>
        <translation>Massimo intero non superiore a X</translation>
    </message>
    <message>
        <source>Smallest whole number not below X</source>
        <translation>Minimo intero non inferiore a X</translation>
    </message>
    <message>
        <source>Change sign of an integer</source>
        <translation>Cambia il segno di un intero</translation>
    </message>
    <message>
        <source>X as an integer of the default format</source>
        <translation>X come intero del formato predefinito</translation>
    </message>
    <message>
        <source>Integer add</source>
        <translation>Somma intera</translation>
    </message>
    <message>
        <source>Integer subtract</source>
        <translation>Sottrazione intera</translation>
    </message>
    <message>
        <source>Integer multiply</source>
        <translation>Moltiplicazione intera</translation>
    </message>
    <message>
        <source>Integer divide</source>
        <translation>Divisione intera</translation>
    </message>
    <message>
        <source>Fixed format: digits follow</source>
        <translation>Formato fisso: seguono le cifre</translation>
    </message>
    <message>
        <source>Clear the date registers and duration settings</source>
        <translation>Cancella i registri di data e le impostazioni di durata</translation>
    </message>
    <message>
        <source>The current date and time</source>
        <translation>La data e l’ora attuali</translation>
    </message>
    <message>
        <source>Date: X typed as Y.MMDD becomes a date</source>
        <translation>Data: X scritto come A.MMGG diventa una data</translation>
    </message>
    <message>
        <source>Time: X typed as H.MMSS becomes a clock time</source>
        <translation>Ora: X scritto come H.MMSS diventa un orario</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Anni</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mesi</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Settimane</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Giorni</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Ore</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondi</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Fotogrammi</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to frames</source>
        <translation>Da ore.minuti-secondi (h.mmss) a fotogrammi</translation>
    </message>
    <message>
        <source>Days per year</source>
        <translation>Giorni per anno</translation>
    </message>
    <message>
        <source>Days per month</source>
        <translation>Giorni per mese</translation>
    </message>
    <message>
        <source>Days per week</source>
        <translation>Giorni per settimana</translation>
    </message>
    <message>
        <source>Hours per day</source>
        <translation>Ore per giorno</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Fotogrammi al secondo</translation>
    </message>
    <message>
        <source>Date part of a date and time</source>
        <translation>Parte data di una data e ora</translation>
    </message>
    <message>
        <source>Time part of a date and time</source>
        <translation>Parte ora di una data e ora</translation>
    </message>
    <message>
        <source>Fraction of a duration in the next smaller unit</source>
        <translation>Frazione di una durata nell’unità inferiore</translation>
    </message>
    <message>
        <source>Enter (second key)</source>
        <translation>Invio (secondo tasto)</translation>
    </message>
    <message>
        <source>Rotate the three lowest levels</source>
        <translation>Ruota i tre livelli più bassi</translation>
    </message>
    <message>
        <source>Over: a copy of Y onto the stack</source>
        <translation>Over: una copia di Y nello stack</translation>
    </message>
    <message>
        <source>Simple input: in the order entered</source>
        <translation>Inserimento semplice: nell’ordine inserito</translation>
    </message>
    <message>
        <source>Precedence input: × and ÷ before + and −</source>
        <translation>Inserimento con precedenza: × e ÷ prima di + e −</translation>
    </message>
    <message>
        <source>RPN input: operands first</source>
        <translation>Inserimento RPN: prima gli operandi</translation>
    </message>
    <message>
        <source>Record a macro</source>
        <translation>Registra una macro</translation>
    </message>
    <message>
        <source>Play the macro</source>
        <translation>Esegui la macro</translation>
    </message>
    <message>
        <source>Pause the macro for input</source>
        <translation>Sospendi la macro per un inserimento</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Ferma la registrazione</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Centimetri</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimetri</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>Iarde</translation>
    </message>
    <message>
        <source>Kilometers</source>
        <translation>Chilometri</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>Miglia nautiche</translation>
    </message>
    <message>
        <source>Square millimeters</source>
        <translation>Millimetri quadrati</translation>
    </message>
    <message>
        <source>Square centimeters</source>
        <translation>Centimetri quadrati</translation>
    </message>
    <message>
        <source>Square kilometers</source>
        <translation>Chilometri quadrati</translation>
    </message>
    <message>
        <source>Square yards</source>
        <translation>Iarde quadrate</translation>
    </message>
    <message>
        <source>Acres</source>
        <translation>Acri</translation>
    </message>
    <message>
        <source>Short tons (2,000 pounds)</source>
        <translation>Tonnellate corte (2.000 libbre)</translation>
    </message>
    <message>
        <source>Milligrams</source>
        <translation>Milligrammi</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Nodi</translation>
    </message>
    <message>
        <source>Cubic meters</source>
        <translation>Metri cubi</translation>
    </message>
    <message>
        <source>Cubic centimeters</source>
        <translation>Centimetri cubi</translation>
    </message>
    <message>
        <source>Cubic yards</source>
        <translation>Iarde cubiche</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Piedi cubi</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Pollici cubi</translation>
    </message>
    <message>
        <source>US quarts</source>
        <translation>Quarti USA</translation>
    </message>
    <message>
        <source>US pints</source>
        <translation>Pinte USA</translation>
    </message>
    <message>
        <source>US cups</source>
        <translation>Tazze USA</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Cucchiai</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Cucchiaini</translation>
    </message>
    <message>
        <source>Imperial gallons</source>
        <translation>Galloni imperiali</translation>
    </message>
    <message>
        <source>Imperial fluid ounces</source>
        <translation>Once liquide imperiali</translation>
    </message>
    <message>
        <source>Amortize a range of payments (second key)</source>
        <translation>Ammortizza una serie di rate (secondo tasto)</translation>
    </message>
    <message>
        <source>Recall one of 100 registers</source>
        <translation>Richiama uno dei 100 registri</translation>
    </message>
    <message>
        <source>Exchange X with one of 100 registers</source>
        <translation>Scambia X con uno dei 100 registri</translation>
    </message>
    <message>
        <source>Store X in one of 100 registers</source>
        <translation>Memorizza X in uno dei 100 registri</translation>
    </message>
    <message>
        <source>First shift</source>
        <translation>Primo Maiusc</translation>
    </message>
    <message>
        <source>Second shift</source>
        <translation>Secondo Maiusc</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>No Function</source>
        <translation>Nessuna funzione</translation>
    </message>
    <message>
        <source>The Keyboard dialog can be used to assign a function to this button.</source>
        <translation>La finestra Tastiera permette di assegnare una funzione a questo tasto.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>This operation will clear the operating stack and all user, financial, statistical, and date registers, and the keyboard macro.</source>
        <translation>Questa operazione cancella lo stack operativo, tutti i registri utente, finanziari, statistici e di data, e la macro di tastiera.</translation>
    </message>
    <message>
        <source>Nothing to Undo</source>
        <translation>Niente da annullare</translation>
    </message>
    <message>
        <source>There are no operations to be undone.</source>
        <translation>Non ci sono operazioni da annullare.</translation>
    </message>
    <message>
        <source>Nothing to Redo</source>
        <translation>Niente da ripetere</translation>
    </message>
    <message>
        <source>There are no undo actions to be redone.</source>
        <translation>Non ci sono azioni annullate da ripetere.</translation>
    </message>
    <message>
        <source>No Macro</source>
        <translation>Nessuna macro</translation>
    </message>
    <message>
        <source>A macro must be recorded before it can be played back.</source>
        <translation>Una macro va registrata prima di poterla eseguire.</translation>
    </message>
    <message>
        <source>Macro Length Exceeded</source>
        <translation>Macro troppo lunga</translation>
    </message>
    <message>
        <source>The macro length has been exceeded and the last key could not be recorded.</source>
        <translation>La lunghezza massima della macro è stata superata e l’ultimo tasto non è stato registrato.</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Non è un numero</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Fuori intervallo</translation>
    </message>
    <message>
        <source>Must be above 0</source>
        <translation>Deve essere maggiore di 0</translation>
    </message>
    <message>
        <source>A whole number from 1 to 32767</source>
        <translation>Un numero intero da 1 a 32767</translation>
    </message>
    <message>
        <source>A whole number from 1 up</source>
        <translation>Un numero intero da 1 in su</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>impossibile esaminare %1: %2</translation>
    </message>
    <message>
        <source>cannot create %1: its folder does not exist</source>
        <translation>impossibile creare %1: la cartella non esiste</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>impossibile creare %1: %2</translation>
    </message>
    <message>
        <source>cannot follow the link %1: %2</source>
        <translation>impossibile seguire il collegamento %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 non è un file normale</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>impossibile aprire %1: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database</source>
        <translation>%1 non è un database di Brinto</translation>
    </message>
    <message>
        <source>%1 is locked by another program; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 è bloccato da un altro programma; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database; it was left as it is; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 non è un database di Brinto; è stato lasciato com’era; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>%1; the calculator runs in memory and nothing will be saved</source>
        <translation>%1; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>%1 is damaged (%2) and cannot be moved aside; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 è danneggiato (%2) e non può essere messo da parte; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; starting on defaults</source>
        <translation>%1 era danneggiato (%2); conservato come %3; avvio con i valori predefiniti</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 era danneggiato (%2); conservato come %3; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>cannot save the calculator to %1 (%2); the file keeps its last save</source>
        <translation>impossibile salvare la calcolatrice in %1 (%2); il file conserva l’ultimo salvataggio</translation>
    </message>
    <message>
        <source>cannot create the folder %1: %2; the calculator runs in memory and nothing will be saved</source>
        <translation>impossibile creare la cartella %1: %2; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>legacy settings not imported: %1</source>
        <translation>impostazioni precedenti non importate: %1</translation>
    </message>
    <message>
        <source>cannot load the calculator from %1 (%2); the calculator runs in memory and nothing will be saved</source>
        <translation>impossibile caricare la calcolatrice da %1 (%2); la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>%1 is read-only; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 è di sola lettura; la calcolatrice funziona in memoria e non verrà salvato nulla</translation>
    </message>
    <message>
        <source>%1 is locked by another program (%2)</source>
        <translation>%1 è bloccato da un altro programma (%2)</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Default Color</source>
        <translation>Colore predefinito</translation>
    </message>
    <message>
        <source>Default Grayscale</source>
        <translation>Grigi predefinito</translation>
    </message>
    <message>
        <source>Default B&amp;W</source>
        <translation>Bianco e nero predefinito</translation>
    </message>
    <message>
        <source>Original Color</source>
        <translation>Colore originale</translation>
    </message>
    <message>
        <source>Original Grayscale</source>
        <translation>Grigi originale</translation>
    </message>
    <message>
        <source>Original B&amp;W</source>
        <translation>Bianco e nero originale</translation>
    </message>
    <message>
        <source>Light Background</source>
        <translation>Sfondo chiaro</translation>
    </message>
    <message>
        <source>Dark Background</source>
        <translation>Sfondo scuro</translation>
    </message>
</context>
<context>
    <name>Ui</name>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Livello %1</translation>
    </message>
    <message>
        <source>Choose an input method to determine how Brinto performs calculations:

- Simple specifies an infix order where the operations are performed in the order they are entered, for example, entering 2 + 3 * 5 = yields the result of 25

- Precedence also specifies an infix order where binary operations are performed before multiplication and division which are performed before addition and subtraction reducing the need for using parentheses, for example, 2 + 3 * 5 = yields the result of 17

- RPN (Reverse Polish Notation) specifies a postfix order where the operands are entered before the operation, for example, 2 Enter 3 + 5 * yields 25 and 2 Enter 3 Enter 5 * + yields 17

- The input method can be specified  at any time in the Preferences dialog

- See the Comparison of Input Methods section of the User Guide for more details</source>
        <translation>Scegliere un metodo di inserimento che determina come Brinto esegue i calcoli:

- Semplice è un ordine infisso in cui le operazioni sono eseguite nell’ordine di inserimento; ad esempio, 2 + 3 * 5 = dà 25

- Precedenza è anch’esso un ordine infisso in cui le operazioni binarie precedono moltiplicazione e divisione, che a loro volta precedono addizione e sottrazione, riducendo il bisogno di parentesi; ad esempio, 2 + 3 * 5 = dà 17

- RPN (notazione polacca inversa) è un ordine postfisso in cui gli operandi sono inseriti prima dell’operazione; ad esempio, 2 Invio 3 + 5 * dà 25 e 2 Invio 3 Invio 5 * + dà 17

- Il metodo di inserimento può essere cambiato in qualsiasi momento nelle Preferenze

- Vedere la sezione «Comparison of Input Methods» della guida utente (in inglese) per maggiori dettagli</translation>
    </message>
    <message>
        <source>Input Method</source>
        <translation>Metodo di inserimento</translation>
    </message>
    <message>
        <source>&amp;Input:</source>
        <translation>&amp;Inserimento:</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Semplice</translation>
    </message>
    <message>
        <source>Precedence</source>
        <translation>Precedenza</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Find Key</source>
        <translation>Trova tasto</translation>
    </message>
    <message>
        <source>&amp;Key name:</source>
        <translation>Nome del &amp;tasto:</translation>
    </message>
    <message>
        <source>sqrt, x^2, pv, Square root...</source>
        <translation>sqrt, x^2, pv, Radice quadrata...</translation>
    </message>
    <message>
        <source>&amp;Matching keys:</source>
        <translation>Tasti &amp;corrispondenti:</translation>
    </message>
    <message>
        <source>&amp;Press</source>
        <translation>&amp;Premi</translation>
    </message>
    <message>
        <source>Type the name of a key.</source>
        <translation>Digitare il nome di un tasto.</translation>
    </message>
    <message>
        <source>No key is called &quot;%1&quot;.</source>
        <translation>Nessun tasto si chiama «%1».</translation>
    </message>
    <message>
        <source>No function</source>
        <translation>Nessuna funzione</translation>
    </message>
    <message>
        <source> (key: %1)</source>
        <translation> (tasto: %1)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastiera</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Basic</source>
        <translation>&amp;Base</translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>&amp;Avanzata</translation>
    </message>
    <message>
        <source>&amp;Stack...</source>
        <translation>&amp;Stack...</translation>
    </message>
    <message>
        <source>&amp;User Registers...</source>
        <translation>&amp;Registri utente...</translation>
    </message>
    <message>
        <source>&amp;Constants...</source>
        <translation>&amp;Costanti...</translation>
    </message>
    <message>
        <source>&amp;TVM...</source>
        <translation>&amp;Valore temporale (TVM)...</translation>
    </message>
    <message>
        <source>Amorti&amp;zation...</source>
        <translation>A&amp;mmortamento...</translation>
    </message>
    <message>
        <source>Cash &amp;Flow...</source>
        <translation>&amp;Flussi di cassa...</translation>
    </message>
    <message>
        <source>Stat&amp;istical...</source>
        <translation>S&amp;tatistica...</translation>
    </message>
    <message>
        <source>Enter &amp;Date...</source>
        <translation>Inserisci &amp;data...</translation>
    </message>
    <message>
        <source>Enter Ti&amp;me...</source>
        <translation>Inserisci &amp;ora...</translation>
    </message>
    <message>
        <source>Du&amp;rations...</source>
        <translation>D&amp;urate...</translation>
    </message>
    <message>
        <source>&amp;History Tape</source>
        <translation>&amp;Nastro di calcolo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>&amp;Find Key...</source>
        <translation>Tro&amp;va tasto...</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Maiusc</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferenze...</translation>
    </message>
    <message>
        <source>&amp;Keyboard...</source>
        <translation>&amp;Tastiera...</translation>
    </message>
    <message>
        <source>&amp;About Brinto...</source>
        <translation>&amp;Informazioni su Brinto...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Non salvato: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Financial</source>
        <translation>Finanziaria</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Scientifica</translation>
    </message>
    <message>
        <source>Statistical</source>
        <translation>Statistica</translation>
    </message>
    <message>
        <source>Programmer</source>
        <translation>Programmatore</translation>
    </message>
    <message>
        <source>Conversion 1</source>
        <translation>Conversione 1</translation>
    </message>
    <message>
        <source>Conversion 2</source>
        <translation>Conversione 2</translation>
    </message>
    <message>
        <source>Date &amp;&amp; Time</source>
        <translation>Data &amp;&amp; ora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Gen</source>
        <translation>Gen</translation>
    </message>
    <message>
        <source>Fin</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Sci</source>
        <translation>Sci</translation>
    </message>
    <message>
        <source>Stat</source>
        <translation>Stat</translation>
    </message>
    <message>
        <source>Prog</source>
        <translation>Prog</translation>
    </message>
    <message>
        <source>Conv 1</source>
        <translation>Conv 1</translation>
    </message>
    <message>
        <source>Conv 2</source>
        <translation>Conv 2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Conv
1</source>
        <translation>Conv
1</translation>
    </message>
    <message>
        <source>Conv
2</source>
        <translation>Conv
2</translation>
    </message>
    <message>
        <source>The calculator could not be saved.</source>
        <translation>Non è stato possibile salvare la calcolatrice.</translation>
    </message>
    <message>
        <source>Quit Without Saving</source>
        <translation>Esci senza salvare</translation>
    </message>
    <message>
        <source>History Tape</source>
        <translation>Nastro di calcolo</translation>
    </message>
    <message>
        <source>Tape lines</source>
        <translation>Righe del nastro</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Double click or Return recalls a result into X; Ctrl+C copies it</source>
        <translation>Doppio clic o Invio richiama un risultato in X; Ctrl+C lo copia</translation>
    </message>
    <message>
        <source>&amp;Recall</source>
        <translation>&amp;Richiama</translation>
    </message>
    <message>
        <source>Recall the selected result into X</source>
        <translation>Richiama il risultato scelto in X</translation>
    </message>
    <message>
        <source>Copy the selected result</source>
        <translation>Copia il risultato scelto</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Salva come...</translation>
    </message>
    <message>
        <source>Save the tape as text or CSV</source>
        <translation>Salva il nastro come testo o CSV</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Ca&amp;ncella</translation>
    </message>
    <message>
        <source>Clear the tape</source>
        <translation>Cancella il nastro</translation>
    </message>
    <message>
        <source>The tape could not be saved to %1: %2</source>
        <translation>Impossibile salvare il nastro in %1: %2</translation>
    </message>
    <message>
        <source>Save Tape</source>
        <translation>Salva nastro</translation>
    </message>
    <message>
        <source>Text (*.txt);;CSV (*.csv)</source>
        <translation>Testo (*.txt);;CSV (*.csv)</translation>
    </message>
    <message>
        <source>Color Chooser</source>
        <translation>Scelta del colore</translation>
    </message>
    <message>
        <source>Red:</source>
        <translation>Rosso:</translation>
    </message>
    <message>
        <source>Green:</source>
        <translation>Verde:</translation>
    </message>
    <message>
        <source>Blue:</source>
        <translation>Blu:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Customize Colors</source>
        <translation>Personalizza colori</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Standard:</source>
        <translation>Standard:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Numero:</translation>
    </message>
    <message>
        <source>Register:</source>
        <translation>Registro:</translation>
    </message>
    <message>
        <source>Clear:</source>
        <translation>Cancellazione:</translation>
    </message>
    <message>
        <source>%1 text color</source>
        <translation>Colore del testo %1</translation>
    </message>
    <message>
        <source>%1 background color</source>
        <translation>Colore di sfondo %1</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Costanti</translation>
    </message>
    <message>
        <source>Days per year (dpy):</source>
        <translation>Giorni per anno (dpy):</translation>
    </message>
    <message>
        <source>Days per month (dpm):</source>
        <translation>Giorni per mese (dpm):</translation>
    </message>
    <message>
        <source>Days per week (dpw):</source>
        <translation>Giorni per settimana (dpw):</translation>
    </message>
    <message>
        <source>Hours per day (hpd):</source>
        <translation>Ore per giorno (hpd):</translation>
    </message>
    <message>
        <source>Frames per second (fps):</source>
        <translation>Fotogrammi al secondo (fps):</translation>
    </message>
    <message>
        <source>Enter Date</source>
        <translation>Inserisci data</translation>
    </message>
    <message>
        <source>Enter Time</source>
        <translation>Inserisci ora</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Tens of minutes</source>
        <translation>Decine di minuti</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuti</translation>
    </message>
    <message>
        <source>&amp;Hour:</source>
        <translation>&amp;Ora:</translation>
    </message>
    <message>
        <source>&amp;Minute:</source>
        <translation>&amp;Minuto:</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>PM</translation>
    </message>
    <message>
        <source>Durations</source>
        <translation>Durate</translation>
    </message>
    <message>
        <source>About Brinto</source>
        <translation>Informazioni su Brinto</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>The user guide is in English.</source>
        <translation>La guida utente è in inglese.</translation>
    </message>
    <message>
        <source>No Cash Flow Entries</source>
        <translation>Nessun flusso di cassa</translation>
    </message>
    <message>
        <source>There are no cash flow entries to display.</source>
        <translation>Non ci sono flussi di cassa da mostrare.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;User guide missing&lt;/h2&gt;&lt;p&gt;The user guide was not built into this copy of Brinto, so help cannot be shown.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Guida utente mancante&lt;/h2&gt;&lt;p&gt;La guida utente non è stata inclusa in questa copia di Brinto, quindi la guida non può essere mostrata.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Brinto Help</source>
        <translation>Guida di Brinto</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Tasto %1: %2</translation>
    </message>
    <message>
        <source>no function</source>
        <translation>nessuna funzione</translation>
    </message>
    <message>
        <source>Customize Keyboard</source>
        <translation>Personalizza tastiera</translation>
    </message>
    <message>
        <source>User Keys:</source>
        <translation>Tasti utente:</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Intero</translation>
    </message>
    <message>
        <source>Shifted</source>
        <translation>Con Maiusc</translation>
    </message>
    <message>
        <source>Available Keys:</source>
        <translation>Tasti disponibili:</translation>
    </message>
    <message>
        <source>Available keyboard</source>
        <translation>Tastiera disponibile</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Amortization chart</source>
        <translation>Grafico di ammortamento</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal by year</source>
        <translation>Saldo dopo ogni rata; interessi e capitale per anno</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal of each payment</source>
        <translation>Saldo dopo ogni rata; interessi e capitale di ogni rata</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Anno</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Rata</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Interessi</translation>
    </message>
    <message>
        <source>Principal</source>
        <translation>Capitale</translation>
    </message>
    <message>
        <source>(by year)</source>
        <translation>(per anno)</translation>
    </message>
    <message>
        <source>(by payment)</source>
        <translation>(per rata)</translation>
    </message>
    <message>
        <source>Cash-flow diagram</source>
        <translation>Diagramma dei flussi di cassa</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutte</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fisso</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Ingegneristico</translation>
    </message>
    <message>
        <source>RPN</source>
        <translation>RPN</translation>
    </message>
    <message>
        <source>8-bit unsigned</source>
        <translation>8 bit senza segno</translation>
    </message>
    <message>
        <source>8-bit signed</source>
        <translation>8 bit con segno</translation>
    </message>
    <message>
        <source>16-bit unsigned</source>
        <translation>16 bit senza segno</translation>
    </message>
    <message>
        <source>16-bit signed</source>
        <translation>16 bit con segno</translation>
    </message>
    <message>
        <source>32-bit unsigned</source>
        <translation>32 bit senza segno</translation>
    </message>
    <message>
        <source>32-bit signed</source>
        <translation>32 bit con segno</translation>
    </message>
    <message>
        <source>Sticky</source>
        <translation>Persistente</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Bloccato</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Non fare nulla</translation>
    </message>
    <message>
        <source>Shift keyboard</source>
        <translation>Cambia tastiera</translation>
    </message>
    <message>
        <source>Repeat last key</source>
        <translation>Ripeti l’ultimo tasto</translation>
    </message>
    <message>
        <source>Open last form</source>
        <translation>Apri l’ultimo modulo</translation>
    </message>
    <message>
        <source>Play macro</source>
        <translation>Esegui macro</translation>
    </message>
    <message>
        <source>100 Registers</source>
        <translation>100 registri</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Data estesa</translation>
    </message>
    <message>
        <source>Backspace Drops</source>
        <translation>Backspace elimina X</translation>
    </message>
    <message>
        <source>Comma Radix</source>
        <translation>Virgola decimale</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Digits:</source>
        <translation>Cifre:</translation>
    </message>
    <message>
        <source>How many digits the number format shows; All: every digit</source>
        <translation>Quante cifre mostra il formato; Tutte: ogni cifra</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Inserimento:</translation>
    </message>
    <message>
        <source>Stack:</source>
        <translation>Stack:</translation>
    </message>
    <message>
        <source>How many levels the operating stack has</source>
        <translation>Quanti livelli ha lo stack operativo</translation>
    </message>
    <message>
        <source>Integer:</source>
        <translation>Intero:</translation>
    </message>
    <message>
        <source>Shift:</source>
        <translation>Maiusc:</translation>
    </message>
    <message>
        <source>Action:</source>
        <translation>Azione:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stack</translation>
    </message>
    <message>
        <source>User Registers</source>
        <translation>Registri utente</translation>
    </message>
    <message>
        <source>TVM</source>
        <translation>Valore temporale (TVM)</translation>
    </message>
    <message>
        <source>Amortization</source>
        <translation>Ammortamento</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Flussi di cassa</translation>
    </message>
    <message>
        <source>Basic also</source>
        <translation>Anche base</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Piccolo</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Calcolatrice</translation>
    </message>
    <message>
        <source>Quick Switch</source>
        <translation>Cambio rapido</translation>
    </message>
    <message>
        <source>Colors...</source>
        <translation>Colori...</translation>
    </message>
    <message>
        <source>Tap:</source>
        <translation>Tocco:</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Tema:</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Righe:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Carattere:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Bordo:</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Sopra</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Fissi</translation>
    </message>
    <message>
        <source>Swapped</source>
        <translation>Scambiato</translation>
    </message>
    <message>
        <source>Zoomed</source>
        <translation>Ingranditi</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Primo piano</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Molto forte</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Mostra:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>Keys:</source>
        <translation>Tasti:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Attivo:</translation>
    </message>
    <message>
        <source>Shadow:</source>
        <translation>Ombra:</translation>
    </message>
    <message>
        <source>Time Value of Money</source>
        <translation>Valore temporale del denaro</translation>
    </message>
    <message>
        <source>Statistical Registers</source>
        <translation>Registri statistici</translation>
    </message>
    <message>
        <source>Cash Flow Entries</source>
        <translation>Flussi di cassa</translation>
    </message>
    <message>
        <source>%1: %2 unchanged</source>
        <translation>%1: %2 invariato</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importo</translation>
    </message>
    <message>
        <source>Schedule...</source>
        <translation>Piano...</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Risolvi</translation>
    </message>
    <message>
        <source>Solve %1</source>
        <translation>Risolvi %1</translation>
    </message>
    <message>
        <source>Amortization Schedule</source>
        <translation>Piano di ammortamento</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Int</source>
        <translation>Int</translation>
    </message>
    <message>
        <source>Prin</source>
        <translation>Cap</translation>
    </message>
    <message>
        <source>Bal</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>Esporta CSV...</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Listed up to payment %1 of %2: the amortization keys reach no further.</source>
        <translation>Elencato fino alla rata %1 di %2: i tasti di ammortamento non vanno oltre.</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>Esporta CSV</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>File CSV (*.csv)</translation>
    </message>
    <message>
        <source>The schedule could not be written to %1.</source>
        <translation>Impossibile scrivere il piano in %1.</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Data &amp; ora</translation>
    </message>
    <message>
        <source>Stack levels</source>
        <translation>Livelli dello stack</translation>
    </message>
    <message>
        <source>Try again, or quit without saving what changed since the last save?</source>
        <translation>Riprovare, o uscire senza salvare le modifiche dall’ultimo salvataggio?</translation>
    </message>
    <message>
        <source>No payments to chart</source>
        <translation>Nessuna rata da rappresentare</translation>
    </message>
    <message>
        <source>Balance stays at %1 over 1 payment</source>
        <translation>Il saldo resta a %1 in 1 rata</translation>
    </message>
    <message>
        <source>Balance stays at %1 over %2 payments</source>
        <translation>Il saldo resta a %1 in %2 rate</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over 1 payment</source>
        <translation>Il saldo scende da %1 a %2 in 1 rata</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over %3 payments</source>
        <translation>Il saldo scende da %1 a %2 in %3 rate</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over 1 payment</source>
        <translation>Il saldo sale da %1 a %2 in 1 rata</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over %3 payments</source>
        <translation>Il saldo sale da %1 a %2 in %3 rate</translation>
    </message>
    <message>
        <source>Cash flows at period 0: %1 paid, %2 received</source>
        <translation>Flussi al periodo 0: %1 pagati, %2 ricevuti</translation>
    </message>
    <message>
        <source>Cash flows over periods 0 to %1: %2 paid, %3 received</source>
        <translation>Flussi nei periodi da 0 a %1: %2 pagati, %3 ricevuti</translation>
    </message>
</context>
</TS>
