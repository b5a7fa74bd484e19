<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Constant</name>
    <message>
        <source>Avogadro&apos;s number, NA</source>
        <translation>Avogadro-Konstante, NA</translation>
    </message>
    <message>
        <source>Boltzmann constant, k</source>
        <translation>Boltzmann-Konstante, k</translation>
    </message>
    <message>
        <source>Molar volume, Vm</source>
        <translation>Molares Volumen, Vm</translation>
    </message>
    <message>
        <source>Universal gas constant, R</source>
        <translation>Universelle Gaskonstante, R</translation>
    </message>
    <message>
        <source>Standard temperature, StdT</source>
        <translation>Normtemperatur, StdT</translation>
    </message>
    <message>
        <source>Standard pressure, StdP</source>
        <translation>Normdruck, StdP</translation>
    </message>
    <message>
        <source>Stefan-Boltzmann constant</source>
        <translation>Stefan-Boltzmann-Konstante</translation>
    </message>
    <message>
        <source>Speed of light in vacuum, c</source>
        <translation>Lichtgeschwindigkeit im Vakuum, c</translation>
    </message>
    <message>
        <source>Permittivity of vacuum</source>
        <translation>Elektrische Feldkonstante</translation>
    </message>
    <message>
        <source>Permeability of vacuum</source>
        <translation>Magnetische Feldkonstante</translation>
    </message>
    <message>
        <source>Acceleration of gravity, g</source>
        <translation>Erdbeschleunigung, g</translation>
    </message>
    <message>
        <source>Gravitational constant, G</source>
        <translation>Gravitationskonstante, G</translation>
    </message>
    <message>
        <source>Planck&apos;s constant, h</source>
        <translation>Plancksches Wirkungsquantum, h</translation>
    </message>
    <message>
        <source>Dirac&apos;s constant, hbar</source>
        <translation>Reduziertes Wirkungsquantum, hbar</translation>
    </message>
    <message>
        <source>Electron charge, q</source>
        <translation>Elementarladung, q</translation>
    </message>
    <message>
        <source>Electron rest mass, me</source>
        <translation>Ruhemasse des Elektrons, me</translation>
    </message>
    <message>
        <source>q/me, qme</source>
        <translation>q/me, qme</translation>
    </message>
    <message>
        <source>Proton rest mass, mp</source>
        <translation>Ruhemasse des Protons, mp</translation>
    </message>
    <message>
        <source>mp/me, mpme</source>
        <translation>mp/me, mpme</translation>
    </message>
    <message>
        <source>Fine structure constant</source>
        <translation>Feinstrukturkonstante</translation>
    </message>
    <message>
        <source>Magnetic flux quantum</source>
        <translation>Magnetisches Flussquant</translation>
    </message>
    <message>
        <source>Faraday constant, F</source>
        <translation>Faraday-Konstante, F</translation>
    </message>
    <message>
        <source>Rydberg constant</source>
        <translation>Rydberg-Konstante</translation>
    </message>
    <message>
        <source>Bohr radius, a0</source>
        <translation>Bohrscher Radius, a0</translation>
    </message>
    <message>
        <source>Bohr magneton</source>
        <translation>Bohrsches Magneton</translation>
    </message>
    <message>
        <source>Nuclear magneton</source>
        <translation>Kernmagneton</translation>
    </message>
    <message>
        <source>Photon wavelength (ch/e)</source>
        <translation>Photonenwellenlänge (ch/e)</translation>
    </message>
    <message>
        <source>Photon frequency (e/h)</source>
        <translation>Photonenfrequenz (e/h)</translation>
    </message>
    <message>
        <source>Compton wavelength</source>
        <translation>Compton-Wellenlänge</translation>
    </message>
    <message>
        <source>Wien displacement constant, c3</source>
        <translation>Wiensche Verschiebungskonstante, c3</translation>
    </message>
    <message>
        <source>Dielectric constant</source>
        <translation>Dielektrizitätskonstante</translation>
    </message>
    <message>
        <source>SiO2 dielectric constant</source>
        <translation>Dielektrizitätskonstante von SiO2</translation>
    </message>
    <message>
        <source>Reference intensity, I0</source>
        <translation>Bezugsintensität, I0</translation>
    </message>
</context>
<context>
    <name>KeyMeaning</name>
    <message>
        <source>Digit 0</source>
        <translation>Ziffer 0</translation>
    </message>
    <message>
        <source>Digit 1</source>
        <translation>Ziffer 1</translation>
    </message>
    <message>
        <source>Digit 2</source>
        <translation>Ziffer 2</translation>
    </message>
    <message>
        <source>Digit 3</source>
        <translation>Ziffer 3</translation>
    </message>
    <message>
        <source>Digit 4</source>
        <translation>Ziffer 4</translation>
    </message>
    <message>
        <source>Digit 5</source>
        <translation>Ziffer 5</translation>
    </message>
    <message>
        <source>Digit 6</source>
        <translation>Ziffer 6</translation>
    </message>
    <message>
        <source>Digit 7</source>
        <translation>Ziffer 7</translation>
    </message>
    <message>
        <source>Digit 8</source>
        <translation>Ziffer 8</translation>
    </message>
    <message>
        <source>Digit 9</source>
        <translation>Ziffer 9</translation>
    </message>
    <message>
        <source>Hexadecimal digit A (10)</source>
        <translation>Hexadezimalziffer A (10)</translation>
    </message>
    <message>
        <source>Hexadecimal digit B (11)</source>
        <translation>Hexadezimalziffer B (11)</translation>
    </message>
    <message>
        <source>Hexadecimal digit C (12)</source>
        <translation>Hexadezimalziffer C (12)</translation>
    </message>
    <message>
        <source>Hexadecimal digit D (13)</source>
        <translation>Hexadezimalziffer D (13)</translation>
    </message>
    <message>
        <source>Hexadecimal digit E (14)</source>
        <translation>Hexadezimalziffer E (14)</translation>
    </message>
    <message>
        <source>E (in an integer base)</source>
        <translation>E (in einer Ganzzahlbasis)</translation>
    </message>
    <message>
        <source>Hexadecimal digit F (15)</source>
        <translation>Hexadezimalziffer F (15)</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Dezimaltrennzeichen</translation>
    </message>
    <message>
        <source>. or ,</source>
        <translation>. oder ,</translation>
    </message>
    <message>
        <source>Decimal point (second key)</source>
        <translation>Dezimaltrennzeichen (zweite Taste)</translation>
    </message>
    <message>
        <source>Enter exponent</source>
        <translation>Exponent eingeben</translation>
    </message>
    <message>
        <source>Change sign</source>
        <translation>Vorzeichen wechseln</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Enter (RPN)</source>
        <translation>Eingabetaste (RPN)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Addieren</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Subtrahieren</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>* or X</source>
        <translation>* oder X</translation>
    </message>
    <message>
        <source>Divide</source>
        <translation>Dividieren</translation>
    </message>
    <message>
        <source>Equals: complete the calculation</source>
        <translation>Gleich: die Rechnung abschließen</translation>
    </message>
    <message>
        <source>= or Enter</source>
        <translation>= oder Eingabetaste</translation>
    </message>
    <message>
        <source>Shift: the keys&apos; second functions</source>
        <translation>Umschalten: die Zweitfunktionen der Tasten</translation>
    </message>
    <message>
        <source>Show all digits, dates as numbers (toggle)</source>
        <translation>Alle Stellen zeigen, Datumswerte als Zahlen (umschalten)</translation>
    </message>
    <message>
        <source>Clear all: stack, registers and macro</source>
        <translation>Alles löschen: Stapel, Register und Makro</translation>
    </message>
    <message>
        <source>Clear stack</source>
        <translation>Stapel löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Clear X</source>
        <translation>X löschen</translation>
    </message>
    <message>
        <source>Clear all (second key)</source>
        <translation>Alles löschen (zweite Taste)</translation>
    </message>
    <message>
        <source>Clear stack (second key)</source>
        <translation>Stapel löschen (zweite Taste)</translation>
    </message>
    <message>
        <source>Clear X (second key)</source>
        <translation>X löschen (zweite Taste)</translation>
    </message>
    <message>
        <source>Clear user, financial and statistical registers</source>
        <translation>Benutzer-, Finanz- und Statistikregister löschen</translation>
    </message>
    <message>
        <source>Clear the financial registers</source>
        <translation>Die Finanzregister löschen</translation>
    </message>
    <message>
        <source>Clear the statistical sums</source>
        <translation>Die Statistiksummen löschen</translation>
    </message>
    <message>
        <source>Roll the stack down</source>
        <translation>Stapel abwärts rotieren</translation>
    </message>
    <message>
        <source>Roll the stack up</source>
        <translation>Stapel aufwärts rotieren</translation>
    </message>
    <message>
        <source>Drop X</source>
        <translation>X entfernen</translation>
    </message>
    <message>
        <source>Fill the stack with X</source>
        <translation>Den Stapel mit X füllen</translation>
    </message>
    <message>
        <source>Exchange X and Y</source>
        <translation>X und Y tauschen</translation>
    </message>
    <message>
        <source>Store X in a register</source>
        <translation>X in einem Register speichern</translation>
    </message>
    <message>
        <source>Last X</source>
        <translation>Letztes X</translation>
    </message>
    <message>
        <source>Recall a register</source>
        <translation>Ein Register abrufen</translation>
    </message>
    <message>
        <source>Exchange X with a register</source>
        <translation>X mit einem Register tauschen</translation>
    </message>
    <message>
        <source>Open parenthesis</source>
        <translation>Klammer auf</translation>
    </message>
    <message>
        <source>Close parenthesis</source>
        <translation>Klammer zu</translation>
    </message>
    <message>
        <source>Percent of total: X as a percentage of Y</source>
        <translation>Anteil: X in Prozent von Y</translation>
    </message>
    <message>
        <source>Percent change from Y to X</source>
        <translation>Prozentuale Änderung von Y nach X</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Round X to the digits shown</source>
        <translation>X auf die angezeigten Stellen runden</translation>
    </message>
    <message>
        <source>Integer part</source>
        <translation>Ganzzahliger Teil</translation>
    </message>
    <message>
        <source>Absolute value</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Square root</source>
        <translation>Quadratwurzel</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Cube root</source>
        <translation>Kubikwurzel</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Kubikzahl</translation>
    </message>
    <message>
        <source>Power: Y raised to X</source>
        <translation>Potenz: Y hoch X</translation>
    </message>
    <message>
        <source>Reciprocal</source>
        <translation>Kehrwert</translation>
    </message>
    <message>
        <source>Fractional part</source>
        <translation>Nachkommateil</translation>
    </message>
    <message>
        <source>Remainder of Y divided by X</source>
        <translation>Rest von Y geteilt durch X</translation>
    </message>
    <message>
        <source>Payments at the beginning or end of periods (toggle)</source>
        <translation>Zahlungen am Anfang oder Ende der Perioden (umschalten)</translation>
    </message>
    <message>
        <source>Number of payments</source>
        <translation>Anzahl der Zahlungen</translation>
    </message>
    <message>
        <source>Nominal annual interest rate, percent</source>
        <translation>Nominaler Jahreszins in Prozent</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>Barwert</translation>
    </message>
    <message>
        <source>Payment per period</source>
        <translation>Zahlung pro Periode</translation>
    </message>
    <message>
        <source>Future value</source>
        <translation>Endwert</translation>
    </message>
    <message>
        <source>Payments per year</source>
        <translation>Zahlungen pro Jahr</translation>
    </message>
    <message>
        <source>Nominal annual interest rate</source>
        <translation>Nominaler Jahreszins</translation>
    </message>
    <message>
        <source>Effective annual interest rate</source>
        <translation>Effektiver Jahreszins</translation>
    </message>
    <message>
        <source>Years times payments per year, stored in N</source>
        <translation>Jahre mal Zahlungen pro Jahr, in N gespeichert</translation>
    </message>
    <message>
        <source>Divide by payments per year</source>
        <translation>Durch Zahlungen pro Jahr teilen</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Margin, percent of price</source>
        <translation>Marge in Prozent des Preises</translation>
    </message>
    <message>
        <source>Markup, percent of cost</source>
        <translation>Aufschlag in Prozent der Kosten</translation>
    </message>
    <message>
        <source>Amortize a range of payments</source>
        <translation>Eine Reihe von Zahlungen tilgen</translation>
    </message>
    <message>
        <source>Amortize the next range of payments</source>
        <translation>Die nächste Reihe von Zahlungen tilgen</translation>
    </message>
    <message>
        <source>Cash flow: append X to the cash flows</source>
        <translation>Zahlung: X an die Zahlungsreihe anhängen</translation>
    </message>
    <message>
        <source>Times the last cash flow repeats</source>
        <translation>Wiederholungen der letzten Zahlung</translation>
    </message>
    <message>
        <source>Net present value</source>
        <translation>Kapitalwert</translation>
    </message>
    <message>
        <source>Internal rate of return per year</source>
        <translation>Interner Zinsfuß pro Jahr</translation>
    </message>
    <message>
        <source>Sine</source>
        <translation>Sinus</translation>
    </message>
    <message>
        <source>Cosine</source>
        <translation>Kosinus</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangens</translation>
    </message>
    <message>
        <source>Arc sine</source>
        <translation>Arkussinus</translation>
    </message>
    <message>
        <source>Arc cosine</source>
        <translation>Arkuskosinus</translation>
    </message>
    <message>
        <source>Arc tangent</source>
        <translation>Arkustangens</translation>
    </message>
    <message>
        <source>Pi</source>
        <translation>Pi</translation>
    </message>
    <message>
        <source>Hyperbolic prefix for the next function</source>
        <translation>Hyperbolisch-Präfix für die nächste Funktion</translation>
    </message>
    <message>
        <source>Natural logarithm</source>
        <translation>Natürlicher Logarithmus</translation>
    </message>
    <message>
        <source>Common logarithm</source>
        <translation>Zehnerlogarithmus</translation>
    </message>
    <message>
        <source>Natural exponential</source>
        <translation>Exponentialfunktion</translation>
    </message>
    <message>
        <source>Power of ten</source>
        <translation>Zehnerpotenz</translation>
    </message>
    <message>
        <source>Angles in degrees</source>
        <translation>Winkel in Grad</translation>
    </message>
    <message>
        <source>Angles in radians</source>
        <translation>Winkel im Bogenmaß</translation>
    </message>
    <message>
        <source>Angles in grads</source>
        <translation>Winkel in Gon</translation>
    </message>
    <message>
        <source>Radians to degrees</source>
        <translation>Bogenmaß in Grad</translation>
    </message>
    <message>
        <source>Degrees to radians</source>
        <translation>Grad in Bogenmaß</translation>
    </message>
    <message>
        <source>Polar to rectangular</source>
        <translation>Polar in rechtwinklig</translation>
    </message>
    <message>
        <source>Rectangular to polar</source>
        <translation>Rechtwinklig in polar</translation>
    </message>
    <message>
        <source>Hours to hours.minutes-seconds (h.mmss)</source>
        <translation>Stunden in Stunden.Minuten-Sekunden (h.mmss)</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to hours</source>
        <translation>Stunden.Minuten-Sekunden (h.mmss) in Stunden</translation>
    </message>
    <message>
        <source>Add the point (X, Y) to the sums</source>
        <translation>Den Punkt (X, Y) zu den Summen hinzufügen</translation>
    </message>
    <message>
        <source>Remove the point (X, Y) from the sums</source>
        <translation>Den Punkt (X, Y) aus den Summen entfernen</translation>
    </message>
    <message>
        <source>Sum of x</source>
        <translation>Summe der x</translation>
    </message>
    <message>
        <source>Sum of x squared</source>
        <translation>Summe der x-Quadrate</translation>
    </message>
    <message>
        <source>Sum of y</source>
        <translation>Summe der y</translation>
    </message>
    <message>
        <source>Sum of y squared</source>
        <translation>Summe der y-Quadrate</translation>
    </message>
    <message>
        <source>Sum of the products xy</source>
        <translation>Summe der Produkte xy</translation>
    </message>
    <message>
        <source>Number of points</source>
        <translation>Anzahl der Punkte</translation>
    </message>
    <message>
        <source>Mean of x</source>
        <translation>Mittelwert von x</translation>
    </message>
    <message>
        <source>Mean of x weighted by y</source>
        <translation>Mittelwert von x, gewichtet mit y</translation>
    </message>
    <message>
        <source>Mean of y</source>
        <translation>Mittelwert von y</translation>
    </message>
    <message>
        <source>Estimated x for the y in X; r in Y</source>
        <translation>Geschätztes x für das y in X; r in Y</translation>
    </message>
    <message>
        <source>Estimated y for the x in X; slope in Y</source>
        <translation>Geschätztes y für das x in X; Steigung in Y</translation>
    </message>
    <message>
        <source>Random number</source>
        <translation>Zufallszahl</translation>
    </message>
    <message>
        <source>Factorial</source>
        <translation>Fakultät</translation>
    </message>
    <message>
        <source>Logarithm of the gamma function</source>
        <translation>Logarithmus der Gammafunktion</translation>
    </message>
    <message>
        <source>Sample standard deviation</source>
        <translation>Standardabweichung der Stichprobe</translation>
    </message>
    <message>
        <source>Population standard deviation</source>
        <translation>Standardabweichung der Grundgesamtheit</translation>
    </message>
    <message>
        <source>Combinations of X items from Y</source>
        <translation>Kombinationen von X aus Y</translation>
    </message>
    <message>
        <source>Permutations of X items from Y</source>
        <translation>Variationen von X aus Y</translation>
    </message>
    <message>
        <source>Binary entry and display</source>
        <translation>Binäre Eingabe und Anzeige</translation>
    </message>
    <message>
        <source>Octal entry and display</source>
        <translation>Oktale Eingabe und Anzeige</translation>
    </message>
    <message>
        <source>Decimal integer entry and display</source>
        <translation>Dezimale Ganzzahleingabe und -anzeige</translation>
    </message>
    <message>
        <source>Hexadecimal entry and display</source>
        <translation>Hexadezimale Eingabe und Anzeige</translation>
    </message>
    <message>
        <source>Bitwise AND</source>
        <translation>Bitweises UND</translation>
    </message>
    <message>
        <source>Bitwise OR</source>
        <translation>Bitweises ODER</translation>
    </message>
    <message>
        <source>Bitwise exclusive OR</source>
        <translation>Bitweises exklusives ODER</translation>
    </message>
    <message>
        <source>Bitwise NOT</source>
        <translation>Bitweises NICHT</translation>
    </message>
    <message>
        <source>Shift Y left by X bits</source>
        <translation>Y um X Bit nach links schieben</translation>
    </message>
    <message>
        <source>Shift Y right by X bits (logical)</source>
        <translation>Y um X Bit nach rechts schieben (logisch)</translation>
    </message>
    <message>
        <source>Arithmetic shift right, keeping the sign</source>
        <translation>Arithmetisch nach rechts schieben, Vorzeichen bleibt</translation>
    </message>
    <message>
        <source>Rotate Y right by X bits</source>
        <translation>Y um X Bit nach rechts rotieren</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Meilen</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Square inches</source>
        <translation>Quadratzoll</translation>
    </message>
    <message>
        <source>Square feet</source>
        <translation>Quadratfuß</translation>
    </message>
    <message>
        <source>Square miles</source>
        <translation>Quadratmeilen</translation>
    </message>
    <message>
        <source>Square meters</source>
        <translation>Quadratmeter</translation>
    </message>
    <message>
        <source>Pounds</source>
        <translation>Pfund</translation>
    </message>
    <message>
        <source>Ounces</source>
        <translation>Unzen</translation>
    </message>
    <message>
        <source>Kilograms</source>
        <translation>Kilogramm</translation>
    </message>
    <message>
        <source>Grams</source>
        <translation>Gramm</translation>
    </message>
    <message>
        <source>Inches per second</source>
        <translation>Zoll pro Sekunde</translation>
    </message>
    <message>
        <source>Feet per second</source>
        <translation>Fuß pro Sekunde</translation>
    </message>
    <message>
        <source>Meters per second</source>
        <translation>Meter pro Sekunde</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Meilen pro Stunde</translation>
    </message>
    <message>
        <source>Kilometers per hour</source>
        <translation>Kilometer pro Stunde</translation>
    </message>
    <message>
        <source>Centimeters per second</source>
        <translation>Zentimeter pro Sekunde</translation>
    </message>
    <message>
        <source>US gallons</source>
        <translation>US-Gallonen</translation>
    </message>
    <message>
        <source>Milliliters</source>
        <translation>Milliliter</translation>
    </message>
    <message>
        <source>Liters</source>
        <translation>Liter</translation>
    </message>
    <message>
        <source>US fluid ounces</source>
        <translation>US-Flüssigunzen</translation>
    </message>
    <message>
        <source>Degrees Celsius</source>
        <translation>Grad Celsius</translation>
    </message>
    <message>
        <source>Degrees Fahrenheit</source>
        <translation>Grad Fahrenheit</translation>
    </message>
    <message>
        <source>X-th root of Y</source>
        <translation>X-te Wurzel aus Y</translation>
    </message>
    <message>
        <source>8-bit unsigned integer</source>
        <translation>8-Bit-Ganzzahl ohne Vorzeichen</translation>
    </message>
    <message>
        <source>8-bit signed integer</source>
        <translation>8-Bit-Ganzzahl mit Vorzeichen</translation>
    </message>
    <message>
        <source>16-bit unsigned integer</source>
        <translation>16-Bit-Ganzzahl ohne Vorzeichen</translation>
    </message>
    <message>
        <source>16-bit signed integer</source>
        <translation>16-Bit-Ganzzahl mit Vorzeichen</translation>
    </message>
    <message>
        <source>32-bit unsigned integer</source>
        <translation>32-Bit-Ganzzahl ohne Vorzeichen</translation>
    </message>
    <message>
        <source>32-bit signed integer</source>
        <translation>32-Bit-Ganzzahl mit Vorzeichen</translation>
    </message>
    <message>
        <source>Standard number format</source>
        <translation>Standard-Zahlenformat</translation>
    </message>
    <message>
        <source>Scientific format: digits follow</source>
        <translation>Wissenschaftliches Format: Stellen folgen</translation>
    </message>
    <message>
        <source>Engineering format: digits follow</source>
        <translation>Technisches Format: Stellen folgen</translation>
    </message>
    <message>
        <source>Largest whole number not above X</source>
        <translation>Größte ganze Zahl nicht über X</translation>
    </message>
    <message>
        <source>Smallest whole number not below X</source>
        <translation>Kleinste ganze Zahl nicht unter X</translation>
    </message>
    <message>
        <source>Change sign of an integer</source>
        <translation>Vorzeichen einer Ganzzahl wechseln</translation>
    </message>
    <message>
        <source>X as an integer of the default format</source>
        <translation>X als Ganzzahl des Standardformats</translation>
    </message>
    <message>
        <source>Integer add</source>
        <translation>Ganzzahlig addieren</translation>
    </message>
    <message>
        <source>Integer subtract</source>
        <translation>Ganzzahlig subtrahieren</translation>
    </message>
    <message>
        <source>Integer multiply</source>
        <translation>Ganzzahlig multiplizieren</translation>
    </message>
    <message>
        <source>Integer divide</source>
        <translation>Ganzzahlig dividieren</translation>
    </message>
    <message>
        <source>Fixed format: digits follow</source>
        <translation>Festes Format: Stellen folgen</translation>
    </message>
    <message>
        <source>Clear the date registers and duration settings</source>
        <translation>Datumsregister und Zeitspannen-Einstellungen löschen</translation>
    </message>
    <message>
        <source>The current date and time</source>
        <translation>Das aktuelle Datum und die Uhrzeit</translation>
    </message>
    <message>
        <source>Date: X typed as Y.MMDD becomes a date</source>
        <translation>Datum: X, als J.MMTT eingegeben, wird ein Datum</translation>
    </message>
    <message>
        <source>Time: X typed as H.MMSS becomes a clock time</source>
        <translation>Zeit: X, als H.MMSS eingegeben, wird eine Uhrzeit</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Hours.minutes-seconds (h.mmss) to frames</source>
        <translation>Stunden.Minuten-Sekunden (h.mmss) in Bilder</translation>
    </message>
    <message>
        <source>Days per year</source>
        <translation>Tage pro Jahr</translation>
    </message>
    <message>
        <source>Days per month</source>
        <translation>Tage pro Monat</translation>
    </message>
    <message>
        <source>Days per week</source>
        <translation>Tage pro Woche</translation>
    </message>
    <message>
        <source>Hours per day</source>
        <translation>Stunden pro Tag</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>Date part of a date and time</source>
        <translation>Datumsteil eines Zeitpunkts</translation>
    </message>
    <message>
        <source>Time part of a date and time</source>
        <translation>Uhrzeitteil eines Zeitpunkts</translation>
    </message>
    <message>
        <source>Fraction of a duration in the next smaller unit</source>
        <translation>Rest einer Zeitspanne in der nächstkleineren Einheit</translation>
    </message>
    <message>
        <source>Enter (second key)</source>
        <translation>Enter (zweite Taste)</translation>
    </message>
    <message>
        <source>Rotate the three lowest levels</source>
        <translation>Die drei untersten Ebenen rotieren</translation>
    </message>
    <message>
        <source>Over: a copy of Y onto the stack</source>
        <translation>Over: eine Kopie von Y auf den Stapel</translation>
    </message>
    <message>
        <source>Simple input: in the order entered</source>
        <translation>Einfache Eingabe: in der Reihenfolge der Eingabe</translation>
    </message>
    <message>
        <source>Precedence input: × and ÷ before + and −</source>
        <translation>Vorrang-Eingabe: × und ÷ vor + und −</translation>
    </message>
    <message>
        <source>RPN input: operands first</source>
        <translation>RPN-Eingabe: Operanden zuerst</translation>
    </message>
    <message>
        <source>Record a macro</source>
        <translation>Ein Makro aufzeichnen</translation>
    </message>
    <message>
        <source>Play the macro</source>
        <translation>Das Makro abspielen</translation>
    </message>
    <message>
        <source>Pause the macro for input</source>
        <translation>Das Makro für eine Eingabe anhalten</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>Aufzeichnung beenden</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>Yards</translation>
    </message>
    <message>
        <source>Kilometers</source>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>Seemeilen</translation>
    </message>
    <message>
        <source>Square millimeters</source>
        <translation>Quadratmillimeter</translation>
    </message>
    <message>
        <source>Square centimeters</source>
        <translation>Quadratzentimeter</translation>
    </message>
    <message>
        <source>Square kilometers</source>
        <translation>Quadratkilometer</translation>
    </message>
    <message>
        <source>Square yards</source>
        <translation>Quadratyards</translation>
    </message>
    <message>
        <source>Acres</source>
        <translation>Acres</translation>
    </message>
    <message>
        <source>Short tons (2,000 pounds)</source>
        <translation>Short tons (2.000 Pfund)</translation>
    </message>
    <message>
        <source>Milligrams</source>
        <translation>Milligramm</translation>
    </message>
    <message>
        <source>Knots</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Cubic meters</source>
        <translation>Kubikmeter</translation>
    </message>
    <message>
        <source>Cubic centimeters</source>
        <translation>Kubikzentimeter</translation>
    </message>
    <message>
        <source>Cubic yards</source>
        <translation>Kubikyards</translation>
    </message>
    <message>
        <source>Cubic feet</source>
        <translation>Kubikfuß</translation>
    </message>
    <message>
        <source>Cubic inches</source>
        <translation>Kubikzoll</translation>
    </message>
    <message>
        <source>US quarts</source>
        <translation>US-Quarts</translation>
    </message>
    <message>
        <source>US pints</source>
        <translation>US-Pints</translation>
    </message>
    <message>
        <source>US cups</source>
        <translation>US-Cups</translation>
    </message>
    <message>
        <source>Tablespoons</source>
        <translation>Esslöffel</translation>
    </message>
    <message>
        <source>Teaspoons</source>
        <translation>Teelöffel</translation>
    </message>
    <message>
        <source>Imperial gallons</source>
        <translation>Britische Gallonen</translation>
    </message>
    <message>
        <source>Imperial fluid ounces</source>
        <translation>Britische Flüssigunzen</translation>
    </message>
    <message>
        <source>Amortize a range of payments (second key)</source>
        <translation>Eine Reihe von Zahlungen tilgen (zweite Taste)</translation>
    </message>
    <message>
        <source>Recall one of 100 registers</source>
        <translation>Eines von 100 Registern abrufen</translation>
    </message>
    <message>
        <source>Exchange X with one of 100 registers</source>
        <translation>X mit einem von 100 Registern tauschen</translation>
    </message>
    <message>
        <source>Store X in one of 100 registers</source>
        <translation>X in einem von 100 Registern speichern</translation>
    </message>
    <message>
        <source>First shift</source>
        <translation>Erste Umschaltung</translation>
    </message>
    <message>
        <source>Second shift</source>
        <translation>Zweite Umschaltung</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>No Function</source>
        <translation>Keine Funktion</translation>
    </message>
    <message>
        <source>The Keyboard dialog can be used to assign a function to this button.</source>
        <translation>Im Dialog Tastatur kann dieser Taste eine Funktion zugewiesen werden.</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>This operation will clear the operating stack and all user, financial, statistical, and date registers, and the keyboard macro.</source>
        <translation>Dies löscht den Rechenstapel, alle Benutzer-, Finanz-, Statistik- und Datumsregister sowie das Tastaturmakro.</translation>
    </message>
    <message>
        <source>Nothing to Undo</source>
        <translation>Nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>There are no operations to be undone.</source>
        <translation>Es gibt keine Operationen, die rückgängig gemacht werden können.</translation>
    </message>
    <message>
        <source>Nothing to Redo</source>
        <translation>Nichts wiederherzustellen</translation>
    </message>
    <message>
        <source>There are no undo actions to be redone.</source>
        <translation>Es gibt keine rückgängig gemachten Schritte zum Wiederherstellen.</translation>
    </message>
    <message>
        <source>No Macro</source>
        <translation>Kein Makro</translation>
    </message>
    <message>
        <source>A macro must be recorded before it can be played back.</source>
        <translation>Ein Makro muss aufgezeichnet werden, bevor es abgespielt werden kann.</translation>
    </message>
    <message>
        <source>Macro Length Exceeded</source>
        <translation>Makro zu lang</translation>
    </message>
    <message>
        <source>The macro length has been exceeded and the last key could not be recorded.</source>
        <translation>Die höchste Makrolänge ist erreicht; die letzte Taste konnte nicht aufgezeichnet werden.</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Keine Zahl</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Must be above 0</source>
        <translation>Muss größer als 0 sein</translation>
    </message>
    <message>
        <source>A whole number from 1 to 32767</source>
        <translation>Eine ganze Zahl von 1 bis 32767</translation>
    </message>
    <message>
        <source>A whole number from 1 up</source>
        <translation>Eine ganze Zahl ab 1</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>cannot look at %1: %2</source>
        <translation>%1 kann nicht geprüft werden: %2</translation>
    </message>
    <message>
        <source>cannot create %1: its folder does not exist</source>
        <translation>%1 kann nicht angelegt werden: der Ordner existiert nicht</translation>
    </message>
    <message>
        <source>cannot create %1: %2</source>
        <translation>%1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>cannot follow the link %1: %2</source>
        <translation>der Verknüpfung %1 kann nicht gefolgt werden: %2</translation>
    </message>
    <message>
        <source>%1 is not a regular file</source>
        <translation>%1 ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database</source>
        <translation>%1 ist keine Brinto-Datenbank</translation>
    </message>
    <message>
        <source>%1 is locked by another program; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 ist von einem anderen Programm gesperrt; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>%1 is not a Brinto database; it was left as it is; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 ist keine Brinto-Datenbank und bleibt unverändert; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>%1; the calculator runs in memory and nothing will be saved</source>
        <translation>%1; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>%1 is damaged (%2) and cannot be moved aside; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 ist beschädigt (%2) und kann nicht beiseitegelegt werden; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; starting on defaults</source>
        <translation>%1 war beschädigt (%2); aufbewahrt als %3; Start mit den Voreinstellungen</translation>
    </message>
    <message>
        <source>%1 was damaged (%2); kept it as %3; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 war beschädigt (%2); aufbewahrt als %3; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>cannot save the calculator to %1 (%2); the file keeps its last save</source>
        <translation>der Rechner kann nicht in %1 gespeichert werden (%2); die Datei behält den letzten Stand</translation>
    </message>
    <message>
        <source>cannot create the folder %1: %2; the calculator runs in memory and nothing will be saved</source>
        <translation>der Ordner %1 kann nicht angelegt werden: %2; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>legacy settings not imported: %1</source>
        <translation>alte Einstellungen nicht übernommen: %1</translation>
    </message>
    <message>
        <source>cannot load the calculator from %1 (%2); the calculator runs in memory and nothing will be saved</source>
        <translation>der Rechner kann nicht aus %1 geladen werden (%2); der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>%1 is read-only; the calculator runs in memory and nothing will be saved</source>
        <translation>%1 ist schreibgeschützt; der Rechner läuft im Speicher, nichts wird gespeichert</translation>
    </message>
    <message>
        <source>%1 is locked by another program (%2)</source>
        <translation>%1 ist von einem anderen Programm gesperrt (%2)</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Default Color</source>
        <translation>Standard farbig</translation>
    </message>
    <message>
        <source>Default Grayscale</source>
        <translation>Standard grau</translation>
    </message>
    <message>
        <source>Default B&amp;W</source>
        <translation>Standard schwarzweiß</translation>
    </message>
    <message>
        <source>Original Color</source>
        <translation>Original farbig</translation>
    </message>
    <message>
        <source>Original Grayscale</source>
        <translation>Original grau</translation>
    </message>
    <message>
        <source>Original B&amp;W</source>
        <translation>Original schwarzweiß</translation>
    </message>
    <message>
        <source>Light Background</source>
        <translation>Heller Hintergrund</translation>
    </message>
    <message>
        <source>Dark Background</source>
        <translation>Dunkler Hintergrund</translation>
    </message>
</context>
<context>
    <name>Ui</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>Choose an input method to determine how Brinto performs calculations:

- Simple specifies an infix order where the operations are performed in the order they are entered, for example, entering 2 + 3 * 5 = yields the result of 25

- Precedence also specifies an infix order where binary operations are performed before multiplication and division which are performed before addition and subtraction reducing the need for using parentheses, for example, 2 + 3 * 5 = yields the result of 17

- RPN (Reverse Polish Notation) specifies a postfix order where the operands are entered before the operation, for example, 2 Enter 3 + 5 * yields 25 and 2 Enter 3 Enter 5 * + yields 17

- The input method can be specified  at any time in the Preferences dialog

- See the Comparison of Input Methods section of the User Guide for more details</source>
        <translation>Wählen Sie eine Eingabemethode, die bestimmt, wie Brinto rechnet:

- Einfach ist eine Infix-Reihenfolge, in der die Operationen in der Reihenfolge ihrer Eingabe ausgeführt werden; zum Beispiel ergibt die Eingabe 2 + 3 * 5 = das Ergebnis 25

- Vorrang ist ebenfalls eine Infix-Reihenfolge, in der binäre Operationen vor Multiplikation und Division und diese vor Addition und Subtraktion ausgeführt werden, sodass weniger Klammern nötig sind; zum Beispiel ergibt 2 + 3 * 5 = das Ergebnis 17

- RPN (Umgekehrte Polnische Notation) ist eine Postfix-Reihenfolge, in der die Operanden vor der Operation eingegeben werden; zum Beispiel ergibt 2 Enter 3 + 5 * das Ergebnis 25 und 2 Enter 3 Enter 5 * + das Ergebnis 17

- Die Eingabemethode kann jederzeit im Dialog Einstellungen geändert werden

- Mehr dazu im Abschnitt „Comparison of Input Methods“ des (englischen) Benutzerhandbuchs</translation>
    </message>
    <message>
        <source>Input Method</source>
        <translation>Eingabemethode</translation>
    </message>
    <message>
        <source>&amp;Input:</source>
        <translation>&amp;Eingabe:</translation>
    </message>
    <message>
        <source>Simple</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Precedence</source>
        <translation>Vorrang</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Find Key</source>
        <translation>Taste suchen</translation>
    </message>
    <message>
        <source>&amp;Key name:</source>
        <translation>&amp;Tastenname:</translation>
    </message>
    <message>
        <source>sqrt, x^2, pv, Square root...</source>
        <translation>sqrt, x^2, pv, Quadratwurzel...</translation>
    </message>
    <message>
        <source>&amp;Matching keys:</source>
        <translation>Passende Tast&amp;en:</translation>
    </message>
    <message>
        <source>&amp;Press</source>
        <translation>&amp;Drücken</translation>
    </message>
    <message>
        <source>Type the name of a key.</source>
        <translation>Geben Sie den Namen einer Taste ein.</translation>
    </message>
    <message>
        <source>No key is called &quot;%1&quot;.</source>
        <translation>Keine Taste heißt „%1“.</translation>
    </message>
    <message>
        <source>No function</source>
        <translation>Keine Funktion</translation>
    </message>
    <message>
        <source> (key: %1)</source>
        <translation> (Taste: %1)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Basic</source>
        <translation>&amp;Einfach</translation>
    </message>
    <message>
        <source>&amp;Advanced</source>
        <translation>E&amp;rweitert</translation>
    </message>
    <message>
        <source>&amp;Stack...</source>
        <translation>&amp;Stapel...</translation>
    </message>
    <message>
        <source>&amp;User Registers...</source>
        <translation>&amp;Benutzerregister...</translation>
    </message>
    <message>
        <source>&amp;Constants...</source>
        <translation>&amp;Konstanten...</translation>
    </message>
    <message>
        <source>&amp;TVM...</source>
        <translation>&amp;Zeitwert (TVM)...</translation>
    </message>
    <message>
        <source>Amorti&amp;zation...</source>
        <translation>&amp;Tilgung...</translation>
    </message>
    <message>
        <source>Cash &amp;Flow...</source>
        <translation>Za&amp;hlungsströme...</translation>
    </message>
    <message>
        <source>Stat&amp;istical...</source>
        <translation>Stat&amp;istik...</translation>
    </message>
    <message>
        <source>Enter &amp;Date...</source>
        <translation>&amp;Datum eingeben...</translation>
    </message>
    <message>
        <source>Enter Ti&amp;me...</source>
        <translation>&amp;Uhrzeit eingeben...</translation>
    </message>
    <message>
        <source>Du&amp;rations...</source>
        <translation>Zeitspa&amp;nnen...</translation>
    </message>
    <message>
        <source>&amp;History Tape</source>
        <translation>Re&amp;chenstreifen</translation>
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
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
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
        <source>&amp;Find Key...</source>
        <translation>Taste &amp;suchen...</translation>
    </message>
    <message>
        <source>S&amp;hift</source>
        <translation>&amp;Umschalten</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Keyboard...</source>
        <translation>&amp;Tastatur...</translation>
    </message>
    <message>
        <source>&amp;About Brinto...</source>
        <translation>&amp;Über Brinto...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Financial</source>
        <translation>Finanzen</translation>
    </message>
    <message>
        <source>Scientific</source>
        <translation>Wissenschaftlich</translation>
    </message>
    <message>
        <source>Statistical</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Programmer</source>
        <translation>Programmierer</translation>
    </message>
    <message>
        <source>Conversion 1</source>
        <translation>Umrechnung 1</translation>
    </message>
    <message>
        <source>Conversion 2</source>
        <translation>Umrechnung 2</translation>
    </message>
    <message>
        <source>Date &amp;&amp; Time</source>
        <translation>Datum &amp;&amp; Zeit</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Gen</source>
        <translation>Allg</translation>
    </message>
    <message>
        <source>Fin</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Sci</source>
        <translation>Wiss</translation>
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
        <translation>Umr 1</translation>
    </message>
    <message>
        <source>Conv 2</source>
        <translation>Umr 2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Conv
1</source>
        <translation>Umr
1</translation>
    </message>
    <message>
        <source>Conv
2</source>
        <translation>Umr
2</translation>
    </message>
    <message>
        <source>The calculator could not be saved.</source>
        <translation>Der Rechner konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Quit Without Saving</source>
        <translation>Ohne Speichern beenden</translation>
    </message>
    <message>
        <source>History Tape</source>
        <translation>Rechenstreifen</translation>
    </message>
    <message>
        <source>Tape lines</source>
        <translation>Zeilen des Rechenstreifens</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Double click or Return recalls a result into X; Ctrl+C copies it</source>
        <translation>Doppelklick oder Eingabetaste holt ein Ergebnis nach X; Strg+C kopiert es</translation>
    </message>
    <message>
        <source>&amp;Recall</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>Recall the selected result into X</source>
        <translation>Das gewählte Ergebnis nach X holen</translation>
    </message>
    <message>
        <source>Copy the selected result</source>
        <translation>Das gewählte Ergebnis kopieren</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>Save the tape as text or CSV</source>
        <translation>Den Rechenstreifen als Text oder CSV speichern</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Clear the tape</source>
        <translation>Den Rechenstreifen leeren</translation>
    </message>
    <message>
        <source>The tape could not be saved to %1: %2</source>
        <translation>Der Rechenstreifen konnte nicht in %1 gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Save Tape</source>
        <translation>Rechenstreifen speichern</translation>
    </message>
    <message>
        <source>Text (*.txt);;CSV (*.csv)</source>
        <translation>Text (*.txt);;CSV (*.csv)</translation>
    </message>
    <message>
        <source>Color Chooser</source>
        <translation>Farbauswahl</translation>
    </message>
    <message>
        <source>Red:</source>
        <translation>Rot:</translation>
    </message>
    <message>
        <source>Green:</source>
        <translation>Grün:</translation>
    </message>
    <message>
        <source>Blue:</source>
        <translation>Blau:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Customize Colors</source>
        <translation>Farben anpassen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Standard:</source>
        <translation>Standard:</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Zahl:</translation>
    </message>
    <message>
        <source>Register:</source>
        <translation>Register:</translation>
    </message>
    <message>
        <source>Clear:</source>
        <translation>Löschen:</translation>
    </message>
    <message>
        <source>%1 text color</source>
        <translation>%1 Textfarbe</translation>
    </message>
    <message>
        <source>%1 background color</source>
        <translation>%1 Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Constants</source>
        <translation>Konstanten</translation>
    </message>
    <message>
        <source>Days per year (dpy):</source>
        <translation>Tage pro Jahr (dpy):</translation>
    </message>
    <message>
        <source>Days per month (dpm):</source>
        <translation>Tage pro Monat (dpm):</translation>
    </message>
    <message>
        <source>Days per week (dpw):</source>
        <translation>Tage pro Woche (dpw):</translation>
    </message>
    <message>
        <source>Hours per day (hpd):</source>
        <translation>Stunden pro Tag (hpd):</translation>
    </message>
    <message>
        <source>Frames per second (fps):</source>
        <translation>Bilder pro Sekunde (fps):</translation>
    </message>
    <message>
        <source>Enter Date</source>
        <translation>Datum eingeben</translation>
    </message>
    <message>
        <source>Enter Time</source>
        <translation>Uhrzeit eingeben</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Tens of minutes</source>
        <translation>Zehnerminuten</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>&amp;Hour:</source>
        <translation>&amp;Stunde:</translation>
    </message>
    <message>
        <source>&amp;Minute:</source>
        <translation>&amp;Minute:</translation>
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
        <translation>Zeitspannen</translation>
    </message>
    <message>
        <source>About Brinto</source>
        <translation>Über Brinto</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The user guide is in English.</source>
        <translation>Das Benutzerhandbuch ist auf Englisch.</translation>
    </message>
    <message>
        <source>No Cash Flow Entries</source>
        <translation>Keine Zahlungen</translation>
    </message>
    <message>
        <source>There are no cash flow entries to display.</source>
        <translation>Es gibt keine Zahlungen zum Anzeigen.</translation>
    </message>
    <message>
        <source>&lt;h2&gt;User guide missing&lt;/h2&gt;&lt;p&gt;The user guide was not built into this copy of Brinto, so help cannot be shown.&lt;/p&gt;</source>
        <translation>&lt;h2&gt;Benutzerhandbuch fehlt&lt;/h2&gt;&lt;p&gt;Das Benutzerhandbuch wurde nicht in dieses Brinto eingebaut, daher kann keine Hilfe angezeigt werden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Brinto Help</source>
        <translation>Brinto-Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Taste %1: %2</translation>
    </message>
    <message>
        <source>no function</source>
        <translation>keine Funktion</translation>
    </message>
    <message>
        <source>Customize Keyboard</source>
        <translation>Tastatur anpassen</translation>
    </message>
    <message>
        <source>User Keys:</source>
        <translation>Eigene Tasten:</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>Ganzzahl</translation>
    </message>
    <message>
        <source>Shifted</source>
        <translation>Umgeschaltet</translation>
    </message>
    <message>
        <source>Available Keys:</source>
        <translation>Verfügbare Tasten:</translation>
    </message>
    <message>
        <source>Available keyboard</source>
        <translation>Verfügbare Tastatur</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Amortization chart</source>
        <translation>Tilgungsdiagramm</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal by year</source>
        <translation>Restschuld nach jeder Zahlung; Zins und Tilgung je Jahr</translation>
    </message>
    <message>
        <source>Balance after each payment; interest and principal of each payment</source>
        <translation>Restschuld nach jeder Zahlung; Zins und Tilgung jeder Zahlung</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Restschuld</translation>
    </message>
    <message>
        <source>Interest</source>
        <translation>Zins</translation>
    </message>
    <message>
        <source>Principal</source>
        <translation>Tilgung</translation>
    </message>
    <message>
        <source>(by year)</source>
        <translation>(je Jahr)</translation>
    </message>
    <message>
        <source>(by payment)</source>
        <translation>(je Zahlung)</translation>
    </message>
    <message>
        <source>Cash-flow diagram</source>
        <translation>Zahlungsstromdiagramm</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Engineering</source>
        <translation>Technisch</translation>
    </message>
    <message>
        <source>RPN</source>
        <translation>RPN</translation>
    </message>
    <message>
        <source>8-bit unsigned</source>
        <translation>8 Bit ohne Vorzeichen</translation>
    </message>
    <message>
        <source>8-bit signed</source>
        <translation>8 Bit mit Vorzeichen</translation>
    </message>
    <message>
        <source>16-bit unsigned</source>
        <translation>16 Bit ohne Vorzeichen</translation>
    </message>
    <message>
        <source>16-bit signed</source>
        <translation>16 Bit mit Vorzeichen</translation>
    </message>
    <message>
        <source>32-bit unsigned</source>
        <translation>32 Bit ohne Vorzeichen</translation>
    </message>
    <message>
        <source>32-bit signed</source>
        <translation>32 Bit mit Vorzeichen</translation>
    </message>
    <message>
        <source>Sticky</source>
        <translation>Haftend</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Feststellend</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>Shift keyboard</source>
        <translation>Tastatur umschalten</translation>
    </message>
    <message>
        <source>Repeat last key</source>
        <translation>Letzte Taste wiederholen</translation>
    </message>
    <message>
        <source>Open last form</source>
        <translation>Letztes Formular öffnen</translation>
    </message>
    <message>
        <source>Play macro</source>
        <translation>Makro abspielen</translation>
    </message>
    <message>
        <source>100 Registers</source>
        <translation>100 Register</translation>
    </message>
    <message>
        <source>Long Date</source>
        <translation>Langes Datum</translation>
    </message>
    <message>
        <source>Backspace Drops</source>
        <translation>Rücktaste entfernt X</translation>
    </message>
    <message>
        <source>Comma Radix</source>
        <translation>Dezimalkomma</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Digits:</source>
        <translation>Stellen:</translation>
    </message>
    <message>
        <source>How many digits the number format shows; All: every digit</source>
        <translation>Wie viele Stellen das Zahlenformat zeigt; Alle: jede Stelle</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Eingabe:</translation>
    </message>
    <message>
        <source>Stack:</source>
        <translation>Stapel:</translation>
    </message>
    <message>
        <source>How many levels the operating stack has</source>
        <translation>Wie viele Ebenen der Rechenstapel hat</translation>
    </message>
    <message>
        <source>Integer:</source>
        <translation>Ganzzahl:</translation>
    </message>
    <message>
        <source>Shift:</source>
        <translation>Umschalten:</translation>
    </message>
    <message>
        <source>Action:</source>
        <translation>Aktion:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>User Registers</source>
        <translation>Benutzerregister</translation>
    </message>
    <message>
        <source>TVM</source>
        <translation>Zeitwert (TVM)</translation>
    </message>
    <message>
        <source>Amortization</source>
        <translation>Tilgung</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Zahlungsströme</translation>
    </message>
    <message>
        <source>Basic also</source>
        <translation>Auch einfach</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Calculator</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Quick Switch</source>
        <translation>Schnellwahl</translation>
    </message>
    <message>
        <source>Colors...</source>
        <translation>Farben...</translation>
    </message>
    <message>
        <source>Tap:</source>
        <translation>Tippen:</translation>
    </message>
    <message>
        <source>Theme:</source>
        <translation>Design:</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Schrift:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Rand:</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Darüber</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Darin</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Swapped</source>
        <translation>Getauscht</translation>
    </message>
    <message>
        <source>Zoomed</source>
        <translation>Vergrößert</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschaltung</translation>
    </message>
    <message>
        <source>Foreground</source>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Sehr stark</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Zeigen:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Keys:</source>
        <translation>Tasten:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>Aktiv:</translation>
    </message>
    <message>
        <source>Shadow:</source>
        <translation>Schatten:</translation>
    </message>
    <message>
        <source>Time Value of Money</source>
        <translation>Zeitwert des Geldes</translation>
    </message>
    <message>
        <source>Statistical Registers</source>
        <translation>Statistikregister</translation>
    </message>
    <message>
        <source>Cash Flow Entries</source>
        <translation>Zahlungen</translation>
    </message>
    <message>
        <source>%1: %2 unchanged</source>
        <translation>%1: %2 unverändert</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Schedule...</source>
        <translation>Tilgungsplan...</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Solve %1</source>
        <translation>%1 lösen</translation>
    </message>
    <message>
        <source>Amortization Schedule</source>
        <translation>Tilgungsplan</translation>
    </message>
    <message>
        <source>Payments</source>
        <translation>Zahlungen</translation>
    </message>
    <message>
        <source>Int</source>
        <translation>Zins</translation>
    </message>
    <message>
        <source>Prin</source>
        <translation>Tilg</translation>
    </message>
    <message>
        <source>Bal</source>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>CSV exportieren...</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Listed up to payment %1 of %2: the amortization keys reach no further.</source>
        <translation>Aufgeführt bis Zahlung %1 von %2: weiter reichen die Tilgungstasten nicht.</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>The schedule could not be written to %1.</source>
        <translation>Der Tilgungsplan konnte nicht in %1 geschrieben werden.</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Datum &amp; Zeit</translation>
    </message>
    <message>
        <source>Stack levels</source>
        <translation>Stapelebenen</translation>
    </message>
    <message>
        <source>Try again, or quit without saving what changed since the last save?</source>
        <translation>Erneut versuchen oder beenden, ohne die Änderungen seit dem letzten Speichern zu sichern?</translation>
    </message>
    <message>
        <source>No payments to chart</source>
        <translation>Keine Zahlungen für ein Diagramm</translation>
    </message>
    <message>
        <source>Balance stays at %1 over 1 payment</source>
        <translation>Restschuld bleibt bei %1 über 1 Zahlung</translation>
    </message>
    <message>
        <source>Balance stays at %1 over %2 payments</source>
        <translation>Restschuld bleibt bei %1 über %2 Zahlungen</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over 1 payment</source>
        <translation>Restschuld fällt von %1 auf %2 über 1 Zahlung</translation>
    </message>
    <message>
        <source>Balance falls from %1 to %2 over %3 payments</source>
        <translation>Restschuld fällt von %1 auf %2 über %3 Zahlungen</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over 1 payment</source>
        <translation>Restschuld wächst von %1 auf %2 über 1 Zahlung</translation>
    </message>
    <message>
        <source>Balance grows from %1 to %2 over %3 payments</source>
        <translation>Restschuld wächst von %1 auf %2 über %3 Zahlungen</translation>
    </message>
    <message>
        <source>Cash flows at period 0: %1 paid, %2 received</source>
        <translation>Zahlungen in Periode 0: %1 gezahlt, %2 erhalten</translation>
    </message>
    <message>
        <source>Cash flows over periods 0 to %1: %2 paid, %3 received</source>
        <translation>Zahlungen über die Perioden 0 bis %1: %2 gezahlt, %3 erhalten</translation>
    </message>
</context>
</TS>
