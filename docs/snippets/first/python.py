from zrstring import MutableString, String, StringArray

fruits = String("pomme, poire, pêche")
order = MutableString(fruits)             # shares the text of `fruits`
order.find_and_replace("poire", "prune")  # copies it first
order.append("; merci")
print(order, "-", len(order), "units")

names = StringArray(str(fruits).split(", "))
names.append(fruits[:5].upper())
print(len(names), names[3], "pêche" in names)
